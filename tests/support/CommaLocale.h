#pragma once

#include <string>

#include "tests/support/TemporaryFolder.h"

/// A user whose numbers have a decimal comma and a point between the thousands.
/// In force for the whole program as long as this object lives.
class CommaLocale {
 public:
  /// The test fails when the locale cannot be made.
  CommaLocale();
  ~CommaLocale();
  CommaLocale(const CommaLocale&) = delete;
  CommaLocale& operator=(const CommaLocale&) = delete;

 private:
  TemporaryFolder folder;
  std::string previous;
};
