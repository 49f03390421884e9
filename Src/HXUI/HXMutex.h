#pragma once

#include <pthread.h>

/// A recursive mutex: the thread that holds it may lock it again, and unlocks
/// it as often. Any thread.
class HXMutex {
 public:
  HXMutex();
  ~HXMutex();
  HXMutex(const HXMutex&) = delete;
  HXMutex& operator=(const HXMutex&) = delete;

  void Lock();
  void Unlock();

 private:
  pthread_mutex_t mutex;
  pthread_mutexattr_t attributes;
};
