// GNUstep takes every argument and every variable of the environment for text and,
// when one of them is not UTF-8, ends the program before main has been reached. A
// folder with a name from another time must not do that: what is no character
// becomes a question mark, in place, before any library looks at it. The name of the
// program's own folder cannot be helped: there it ends with a sentence.

#include <limits.h>
#include <unistd.h>

#include <cstddef>
#include <cstring>

namespace {

// Nothing but plain system calls may be used here: not even the standard library has been
// prepared.

bool IsBetween(unsigned char byte, int low, int high) { return byte >= low && byte <= high; }

/// Bytes of the character that begins at `text`; 0 when none does.
std::size_t LengthOfCharacter(const unsigned char* text) {
  const unsigned char first = text[0];
  if (first < 0x80) return 1;
  std::size_t length = 0;
  int low = 0x80;
  int high = 0xBF;
  if (IsBetween(first, 0xC2, 0xDF)) {
    length = 2;
  } else if (IsBetween(first, 0xE0, 0xEF)) {
    length = 3;
    // Neither longer than need be nor half of a pair of UTF-16.
    if (first == 0xE0) low = 0xA0;
    if (first == 0xED) high = 0x9F;
  } else if (IsBetween(first, 0xF0, 0xF4)) {
    length = 4;
    if (first == 0xF0) low = 0x90;
    if (first == 0xF4) high = 0x8F;
  }
  if (length == 0 || !IsBetween(text[1], low, high)) return 0;
  for (std::size_t at = 2; at < length; ++at) {
    if (!IsBetween(text[at], 0x80, 0xBF)) return 0;
  }
  return length;
}

/// Whether there was nothing to mend.
bool Mend(char* text) {
  bool isText = true;
  while (*text != '\0') {
    const std::size_t length = LengthOfCharacter(reinterpret_cast<unsigned char*>(text));
    if (length == 0) {
      *text = '?';
      isText = false;
    }
    text += length == 0 ? 1 : length;
  }
  return isText;
}

/// The libraries do not come to terms with a place that they cannot name.
void RequireNameablePlace() {
  constexpr char kSentence[] =
      "OstrelInstaller cannot be started from a folder whose name is not UTF-8.\n";
  char path[PATH_MAX];
  const ssize_t length = readlink("/proc/self/exe", path, sizeof(path) - 1);
  if (length <= 0) return;
  path[length] = '\0';
  if (Mend(path)) return;
  if (write(STDERR_FILENO, kSentence, std::strlen(kSentence)) < 0) _exit(2);
  _exit(1);
}

void MendAll(int, char** arguments, char** environment) {
  RequireNameablePlace();
  for (; *arguments != nullptr; ++arguments) Mend(*arguments);
  for (; *environment != nullptr; ++environment) Mend(*environment);
}

// The loader runs what is named here before the libraries' own preparations.
[[gnu::used, gnu::section(".preinit_array")]] void (*const mendAll)(int, char**, char**) = MendAll;

}  // namespace
