#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <utility>

#include "installer/GNUstep/HelperChannel.h"
#include "installer/GNUstep/HelperDescriptor.h"
#include "installer/GNUstep/HelperToolTable.h"
#include "installer/GNUstep/HelperTurn.h"
#include "installer/GNUstep/RootHelper.h"

namespace {

constexpr int kExitUsage = 2;

// Whoever starts a program chooses its signals, descriptors, folder and mask; as root none of
// that may matter.
void ResetSignals() {
  for (int each = 1; each < NSIG; ++each) {
    ::signal(each, SIG_DFL);
  }
  // The installer's end, or its terminal's, is no reason to leave a plug-in half copied. SIGTERM
  // stays: an administrator can end the helper, and shutting down does not wait for it.
  for (const int each : {SIGHUP, SIGINT, SIGPIPE}) {
    ::signal(each, SIG_IGN);
  }
  sigset_t none;
  sigemptyset(&none);
  ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

// Takes the socket from standard input. Afterwards standard input and output are the null device,
// standard error is what it was or, when it was closed, the null device, and nothing else is open.
bool ArrangeDescriptors(HelperDescriptor* socket) {
  constexpr int kFirstFree = STDERR_FILENO + 1;
  HelperDescriptor::CloseAllFrom(kFirstFree);
  *socket = HelperDescriptor(::fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, kFirstFree));
  // Opening fills what was closed of the three, where it has to stay open over exec; only the
  // last one is too many.
  int opened = -1;
  do {
    opened = ::open("/dev/null", O_RDWR);
  } while (opened >= 0 && opened < kFirstFree);
  const HelperDescriptor null(opened);
  return null.IsOpen() && ::dup2(null.Number(), STDIN_FILENO) >= 0 &&
         ::dup2(null.Number(), STDOUT_FILENO) >= 0;
}

}  // namespace

int main() {
  ResetSignals();
  HelperDescriptor socket;
  if (!ArrangeDescriptors(&socket)) {
    return 1;
  }
  if (!HelperChannel::IsSuitable(socket.Number())) {
    std::fputs("OstrelInstallerHelper is started by the installer only.\n", stderr);
    return kExitUsage;
  }
  // Away from the installer's terminal. Fails only when a shell started it as a job of its own.
  ::setsid();
  ::umask(S_IWGRP | S_IWOTH);
  if (::chdir("/") != 0) {
    return 1;
  }
  return RootHelper(std::move(socket), HelperToolTable::Standard(), HelperTurn::OfThisMachine())
      .Run();
}
