#pragma once

#include <string>

/// Holds up whoever wants to read one file until the gate opens, at the latest
/// with this object: so a copying tool can be caught in the middle of its work.
/// It is a lease on the file; the system itself breaks it after 45 seconds.
class CopyGate {
 public:
  /// The file must not be open anywhere; the test fails otherwise.
  explicit CopyGate(const std::string& file);
  ~CopyGate() { Open(); }
  CopyGate(const CopyGate&) = delete;
  CopyGate& operator=(const CopyGate&) = delete;

  /// Waits until somebody stands before the gate; false when nobody comes.
  bool WaitForVisitor() const;
  void Open();

 private:
  int descriptor;
};
