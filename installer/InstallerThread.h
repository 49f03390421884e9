#pragma once

#include "Src/HXUI/HXThread.h"

class InstallerUI;

/// The thread of one installation run. Made by the wizard, which does not own
/// it: it deletes itself when the run has ended, or ends with the process.
class InstallerThread : public HXThread {
 public:
  /// `wizard` holds the selections and receives the status; it must live until
  /// the process ends.
  explicit InstallerThread(InstallerUI* wizard) : owner(wizard) {}

  void Run() override;

 private:
  InstallerUI* owner;
};
