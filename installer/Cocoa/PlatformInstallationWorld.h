#pragma once

#include <functional>

#include "installer/InstallationWorld.h"

/// The machine that the program runs on, as an installation run sees it.
class PlatformInstallationWorld : public InstallationWorld {
 public:
  /// `redraw` is called for each request, on the run's thread.
  explicit PlatformInstallationWorld(std::function<void()> redraw);

  std::unique_ptr<Authorization> MakeAuthorization() override;
  std::string ResourcePath(const std::string& name, const std::string& type) override;
  std::string DataPath(std::int32_t kind) override;
  bool PathExists(const std::string& path) override;
  bool HasEnvironment(const std::string& name) override;
  void WaitForChild(std::int32_t pid) override;
  void RequestRedraw() override;

 private:
  std::function<void()> requestRedraw;
};
