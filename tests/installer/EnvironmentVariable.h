#pragma once

#include <cstdlib>
#include <optional>
#include <string>

/// Sets an environment variable, or clears it, for as long as it lives.
class EnvironmentVariable {
 public:
  EnvironmentVariable(std::string variable, const char* value) : name(std::move(variable)) {
    if (const char* old = std::getenv(name.c_str())) before = old;
    Set(value);
  }
  ~EnvironmentVariable() { Set(before ? before->c_str() : nullptr); }
  EnvironmentVariable(const EnvironmentVariable&) = delete;
  EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

  /// Null clears it.
  void Set(const char* value) {
    if (value != nullptr) {
      setenv(name.c_str(), value, 1);
    } else {
      unsetenv(name.c_str());
    }
  }

 private:
  std::string name;
  std::optional<std::string> before;
};
