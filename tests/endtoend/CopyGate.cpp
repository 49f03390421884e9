#include "tests/endtoend/CopyGate.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <cstring>

#include "tests/endtoend/Waiting.h"

CopyGate::CopyGate(const std::string& file) : descriptor(open(file.c_str(), O_RDWR | O_CLOEXEC)) {
  // The system tells of visitors by this signal; they are asked for instead.
  signal(SIGIO, SIG_IGN);
  EXPECT_EQ(fcntl(descriptor, F_SETLEASE, F_WRLCK), 0) << file << ": " << std::strerror(errno);
}

bool CopyGate::WaitForVisitor() const {
  return WaitUntil([this] { return fcntl(descriptor, F_GETLEASE) != F_WRLCK; });
}

void CopyGate::Open() {
  if (descriptor < 0) return;
  fcntl(descriptor, F_SETLEASE, F_UNLCK);
  close(descriptor);
  descriptor = -1;
}
