#pragma once

#include <string>
#include <vector>

/// The tools that the root helper runs, and nothing beside them: for each, the
/// arguments that it may be asked for and the program that does its work here.
///
/// Arguments are checked word by word. An option must be one of the words named
/// in the table. Everything else is a path and must be absolute: a folder whose
/// name begins with a dash can then never be read as an option. What a path
/// leads to is not judged; whoever was granted the rights may use them anywhere.
class HelperToolTable {
 public:
  /// The words accepted in one place of the arguments; empty stands for any absolute path.
  using Place = std::vector<std::string>;

  struct Tool {
    std::string name;                  ///< Absolute path by which the tool is asked for.
    std::vector<Place> arguments;      ///< One entry per argument, all of them required.
    std::vector<std::string> command;  ///< Program, then the options put before the arguments.
  };

  explicit HelperToolTable(std::vector<Tool> tools);

  /// The five tools of an installation run.
  static HelperToolTable Standard();

  /// Checks `request` (a tool, then its arguments) and that the tool's program
  /// can be executed. Returns 0 and the full command line in `*command`, or a
  /// status with `*reason`, one sentence that repeats nothing of the request.
  int Resolve(const std::vector<std::string>& request, std::vector<std::string>* command,
              std::string* reason) const;

 private:
  std::vector<Tool> tools;
};
