#include "tests/installer/RecordingWorld.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace {

bool IsOpen(int descriptor) { return fcntl(descriptor, F_GETFD) != -1; }

class RecordingAuthorization : public Authorization {
 public:
  explicit RecordingAuthorization(RecordingWorld& recorder) : world(recorder) {}
  ~RecordingAuthorization() override { world.Note("~Authorization"); }

  int Create() override {
    world.Note("Create");
    return world.createStatus;
  }

  int CopyRights(const std::string& right) override {
    world.Note("CopyRights " + right);
    return world.rightsStatus;
  }

  int ExecuteWithPrivileges(const std::string& tool, const std::vector<std::string>& arguments,
                            FILE** pipe) override {
    std::string call = tool;
    for (const std::string& argument : arguments) call += " [" + argument + "]";
    world.Note(call);
    const int status = world.launchStatus ? world.launchStatus(tool, arguments[0]) : 0;
    *pipe = status == 0 ? world.MakePipe() : nullptr;
    return status;
  }

  void Free() override { world.Note("Free"); }

 private:
  RecordingWorld& world;
};

}  // namespace

RecordingWorld::~RecordingWorld() {
  for (const auto& [descriptor, stream] : pipes) {
    if (IsOpen(descriptor)) std::fclose(stream);
  }
}

std::unique_ptr<Authorization> RecordingWorld::MakeAuthorization() {
  return std::make_unique<RecordingAuthorization>(*this);
}

std::string RecordingWorld::ResourcePath(const std::string& name, const std::string& type) {
  return hasResources ? "/R/" + name + "." + type : "";
}

std::string RecordingWorld::DataPath(std::int32_t kind) { return "/Data" + std::to_string(kind); }

bool RecordingWorld::PathExists(const std::string& path) {
  Note("exists " + path);
  return existing.contains(path);
}

bool RecordingWorld::HasEnvironment(const std::string& name) { return environment.contains(name); }

void RecordingWorld::WaitForChild(std::int32_t pid) { Note("wait " + std::to_string(pid)); }

void RecordingWorld::RequestRedraw() { Note("redraw " + std::to_string(state.installStep.load())); }

void RecordingWorld::Note(const std::string& call) {
  log.push_back(call);
  // Nothing may be reported as ended while the run still acts; only giving up
  // the rights when it has returned comes later.
  if (call != "~Authorization") {
    EXPECT_FALSE(state.installDone.load()) << call;
    EXPECT_FALSE(state.installFailed.load()) << call;
  }
}

FILE* RecordingWorld::MakePipe() {
  int ends[2];
  EXPECT_EQ(pipe(ends), 0);
  EXPECT_EQ(write(ends[1], toolOutput.data(), toolOutput.size()),
            static_cast<ssize_t>(toolOutput.size()));
  close(ends[1]);
  FILE* stream = fdopen(ends[0], "r");
  pipes[ends[0]] = stream;
  return stream;
}

std::size_t RecordingWorld::CountOpenPipes() const {
  std::size_t count = 0;
  for (const auto& [descriptor, stream] : pipes) {
    if (IsOpen(descriptor)) ++count;
  }
  return count;
}
