#include "Src/HXUI/HXMutex.h"

HXMutex::HXMutex() {
  pthread_mutexattr_init(&attributes);
  pthread_mutexattr_settype(&attributes, PTHREAD_MUTEX_RECURSIVE);
  pthread_mutex_init(&mutex, &attributes);
}

HXMutex::~HXMutex() {
  pthread_mutex_destroy(&mutex);
  pthread_mutexattr_destroy(&attributes);
}

void HXMutex::Lock() { pthread_mutex_lock(&mutex); }
void HXMutex::Unlock() { pthread_mutex_unlock(&mutex); }
