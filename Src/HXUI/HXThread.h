#pragma once

#include <pthread.h>

/// Work on a thread of its own. Created on the heap; from `Start` on the
/// thread owns the object and deletes it when `Run` has returned, so the
/// creator touches it no more except through data shared by design.
class HXThread {
 public:
  virtual ~HXThread() = default;
  HXThread(const HXThread&) = delete;
  HXThread& operator=(const HXThread&) = delete;

  /// The work. Runs on the new thread, must not touch widgets.
  virtual void Run() = 0;

  /// Starts the thread. False when the system gives no thread; the object
  /// then still belongs to the caller.
  bool Start();
  /// Waits for the end. Only while the thread is known not to have ended:
  /// afterwards the object is gone.
  void Join();

 protected:
  HXThread() = default;

 private:
  static void* Entry(void* object);

  pthread_t thread{};
};
