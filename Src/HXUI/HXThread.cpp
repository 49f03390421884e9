#include "Src/HXUI/HXThread.h"

#include "Src/HXUI/Cocoa/AutoreleasePool.h"

bool HXThread::Start() {
  // The object may be gone when this returns; the C libraries store the handle
  // before the new thread runs, so nothing is written to it afterwards.
  return pthread_create(&thread, nullptr, &HXThread::Entry, this) == 0;
}

void HXThread::Join() { pthread_join(thread, nullptr); }

void* HXThread::Entry(void* object) {
  void* pool = AutoreleasePool::Push();
  auto* self = static_cast<HXThread*>(object);
  self->Run();
  delete self;
  AutoreleasePool::Pop(pool);
  return nullptr;
}
