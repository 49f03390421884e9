#include "Src/HXUI/HXSemaphore.h"

#include <mach/mach.h>
#include <mach/semaphore.h>

struct HXSemaphore::Native {
  semaphore_t semaphore = MACH_PORT_NULL;
};

HXSemaphore::HXSemaphore() : native(std::make_unique<Native>()) {
  semaphore_create(mach_task_self(), &native->semaphore, SYNC_POLICY_FIFO, 0);
}

HXSemaphore::~HXSemaphore() { semaphore_destroy(mach_task_self(), native->semaphore); }

void HXSemaphore::Signal() { semaphore_signal(native->semaphore); }

int HXSemaphore::Wait() {
  kern_return_t status = KERN_ABORTED;
  while (status == KERN_ABORTED) status = semaphore_wait(native->semaphore);
  return status;
}
