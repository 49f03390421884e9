#include "installer/GNUstep/HelperToolTable.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <utility>

#include "installer/GNUstep/AuthorizationStatus.h"

namespace {

bool IsAccepted(const HelperToolTable::Place& place, const std::string& word) {
  if (place.empty()) {
    return word.starts_with('/');
  }
  return std::find(place.begin(), place.end(), word) != place.end();
}

bool IsExecutableFile(const std::string& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
         ::access(path.c_str(), X_OK) == 0;
}

}  // namespace

HelperToolTable::HelperToolTable(std::vector<Tool> tools) : tools(std::move(tools)) {}

HelperToolTable HelperToolTable::Standard() {
  const Place path;
  // ditto is cp here. -T makes the destination the copy itself even when it exists already, as
  // ditto does. The copy belongs to root instead of whoever unpacked the installer: a machine-wide
  // plug-in must not stay writable for one ordinary user. Modes, times, links and attributes are
  // kept. -T makes mv rename or refuse, too: when somebody else has made the destination meanwhile,
  // what was to be moved stays where it is, and whole, instead of ending up inside.
  return HelperToolTable({
      {"/bin/mkdir", {path}, {"/bin/mkdir"}},
      {"/bin/rm", {{"-rf"}, path}, {"/bin/rm"}},
      {"/usr/bin/ditto", {path, path}, {"/bin/cp", "-a", "--no-preserve=ownership", "-T", "--"}},
      {"/bin/chmod", {{"-R"}, {"0755", "0777"}, path}, {"/bin/chmod"}},
      {"/bin/mv", {path, path}, {"/bin/mv", "-T"}},
  });
}

int HelperToolTable::Resolve(const std::vector<std::string>& request,
                             std::vector<std::string>* command, std::string* reason) const {
  const auto tool = std::find_if(tools.begin(), tools.end(), [&request](const Tool& each) {
    return !request.empty() && each.name == request.front();
  });
  if (tool == tools.end()) {
    *reason = "The tool asked for is not one of those that may be run.";
    return kAuthorizationToolExecuteFailure;
  }
  if (!std::equal(tool->arguments.begin(), tool->arguments.end(), request.begin() + 1,
                  request.end(), IsAccepted)) {
    *reason = tool->name + " is not run with such arguments.";
    return kAuthorizationToolEnvironmentError;
  }
  if (!IsExecutableFile(tool->command.front())) {
    *reason = tool->command.front() + " can not be executed.";
    return kAuthorizationToolExecuteFailure;
  }
  *command = tool->command;
  command->insert(command->end(), request.begin() + 1, request.end());
  return kAuthorizationSuccess;
}
