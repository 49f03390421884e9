#include "tests/support/CommaLocale.h"

#include <gtest/gtest.h>

#include <array>
#include <clocale>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr const char* kName = "comma_XX";

constexpr const char* kSource =
    "comment_char %\n"
    "escape_char /\n"
    "LC_NUMERIC\n"
    "decimal_point \",\"\n"
    "thousands_sep \".\"\n"
    "grouping 3;3\n"
    "END LC_NUMERIC\n";

}  // namespace

CommaLocale::CommaLocale() : previous(std::setlocale(LC_ALL, nullptr)) {
  const std::string source = folder.AddFile("source", kSource);
  // It goes without the other categories, but not without a warning and a status of 1.
  const std::string command =
      "localedef -c -i '" + source + "' '" + folder.Path(kName) + "' >/dev/null 2>&1";
  EXPECT_NE(std::system(command.c_str()), -1);
  setenv("LOCPATH", folder.path.c_str(), 1);
  EXPECT_NE(std::setlocale(LC_ALL, kName), nullptr) << "localedef has made no locale";
  std::array<char, 8> text{};
  std::snprintf(text.data(), text.size(), "%.1f", 1.5);
  EXPECT_STREQ(text.data(), "1,5");
}

CommaLocale::~CommaLocale() {
  std::setlocale(LC_ALL, previous.c_str());
  unsetenv("LOCPATH");
}
