#include "installer/GNUstep/HelperTurn.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <utility>

HelperTurn::HelperTurn(std::string folder) : folder(std::move(folder)) {}

HelperTurn HelperTurn::OfThisMachine() { return HelperTurn("/root"); }

bool HelperTurn::Take() {
  if (lock.IsOpen()) {
    return true;
  }
  // Not closed on exec: the tools are to hold it as well.
  HelperDescriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY));
  if (!opened.IsOpen()) {
    return true;
  }
  if (::flock(opened.Number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
    return false;
  }
  lock = std::move(opened);
  return true;
}
