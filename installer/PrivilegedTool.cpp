#include "installer/PrivilegedTool.h"

#include <cerrno>
#include <cstdlib>

int RunPrivileged(Authorization& authorization, const std::string& tool,
                  const std::vector<std::string>& arguments, FILE** pipe) {
  return authorization.ExecuteWithPrivileges(tool, arguments, pipe);
}

std::int32_t ReadChildPid(FILE* pipe) {
  if (pipe == nullptr) return -1;
  char* buffer = nullptr;
  std::size_t capacity = 0;
  const ssize_t length = getline(&buffer, &capacity, pipe);
  std::string line;
  if (length > 0) line.assign(buffer, static_cast<std::size_t>(length));
  std::free(buffer);
  if (length <= 0) return -1;
  if (line.back() == '\n') line.pop_back();

  errno = 0;
  const std::int32_t number = std::atoi(line.c_str());
  return errno == 0 ? number : -1;
}
