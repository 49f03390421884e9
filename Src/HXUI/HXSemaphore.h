#pragma once

#include <memory>

/// A counting semaphore that starts at 0 and wakes waiters in the order in
/// which they came. Any thread.
class HXSemaphore {
 public:
  HXSemaphore();
  ~HXSemaphore();
  HXSemaphore(const HXSemaphore&) = delete;
  HXSemaphore& operator=(const HXSemaphore&) = delete;

  void Signal();
  /// Blocks until signalled; an interrupted wait goes on. Returns the
  /// platform's status, 0 on success.
  int Wait();

 private:
  struct Native;
  std::unique_ptr<Native> native;
};
