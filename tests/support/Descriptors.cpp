#include "tests/support/Descriptors.h"

#include <fcntl.h>
#include <unistd.h>

int LowestFreeDescriptor() {
  const int fd = open("/dev/null", O_RDONLY);
  close(fd);
  return fd;
}
