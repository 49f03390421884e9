#include "installer/GNUstep/HelperDescriptor.h"

#include <unistd.h>

#include <algorithm>

HelperDescriptor& HelperDescriptor::operator=(HelperDescriptor&& other) noexcept {
  if (this != &other) {
    Close();
    descriptor = other.Release();
  }
  return *this;
}

int HelperDescriptor::Release() {
  const int released = descriptor;
  descriptor = -1;
  return released;
}

void HelperDescriptor::Close() {
  if (descriptor >= 0) {
    ::close(Release());
  }
}

void HelperDescriptor::CloseAllFrom(int first) {
  if (::close_range(static_cast<unsigned>(first), ~0U, 0) == 0) {
    return;
  }
  // Kernels before 5.9, and sandboxes that do not know the call. The bound keeps a container's
  // limit of a thousand million from costing minutes.
  const long limit = std::clamp(::sysconf(_SC_OPEN_MAX), 1024L, 65536L);
  for (int each = first; each < limit; ++each) {
    ::close(each);
  }
}
