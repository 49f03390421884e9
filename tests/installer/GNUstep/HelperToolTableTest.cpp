#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "installer/GNUstep/AuthorizationStatus.h"
#include "installer/GNUstep/HelperToolTable.h"
#include "tests/installer/GNUstep/HelperTestFolder.h"

namespace {

using Words = std::vector<std::string>;

class HelperToolTableTest : public testing::Test {
 protected:
  int Resolve(const Words& request) {
    command.clear();
    reason.clear();
    return HelperToolTable::Standard().Resolve(request, &command, &reason);
  }

  void ExpectRefused(const Words& request, int status) {
    EXPECT_EQ(Resolve(request), status) << testing::PrintToString(request);
    EXPECT_TRUE(command.empty());
    EXPECT_FALSE(reason.empty());
    EXPECT_EQ(reason.find('\n'), std::string::npos);
  }

  HelperTestFolder folder;
  Words command;
  std::string reason;
};

TEST_F(HelperToolTableTest, RunsEachToolOfTheRun) {
  const std::vector<Words> asTheyAre = {
      {"/bin/mkdir", "/a b"},
      {"/bin/rm", "-rf", "/a/Ostrel.plugin"},
      {"/bin/chmod", "-R", "0755", "/a"},
      {"/bin/chmod", "-R", "0777", "/a"},
  };
  for (const Words& request : asTheyAre) {
    EXPECT_EQ(Resolve(request), kAuthorizationSuccess) << reason;
    EXPECT_EQ(command, request);
  }
}

TEST_F(HelperToolTableTest, MovesToTheDestinationItself) {
  EXPECT_EQ(Resolve({"/bin/mv", "/a", "/b"}), kAuthorizationSuccess) << reason;
  EXPECT_EQ(command, Words({"/bin/mv", "-T", "/a", "/b"}));
}

TEST_F(HelperToolTableTest, CopiesToTheDestinationItself) {
  EXPECT_EQ(Resolve({"/usr/bin/ditto", "/from", "/to"}), kAuthorizationSuccess) << reason;
  EXPECT_EQ(command,
            Words({"/bin/cp", "-a", "--no-preserve=ownership", "-T", "--", "/from", "/to"}));
}

TEST_F(HelperToolTableTest, KnowsNoOtherTool) {
  for (const char* tool :
       {"", "mkdir", "bin/mkdir", "./mkdir", "/bin/sh", "/bin/cp", "/usr/bin/mkdir", "/bin//mkdir",
        "/bin/../bin/mkdir", "/bin/mkdir ", "/bin/mkdirx"}) {
    ExpectRefused({tool, "/a"}, kAuthorizationToolExecuteFailure);
  }
  ExpectRefused({}, kAuthorizationToolExecuteFailure);
}

TEST_F(HelperToolTableTest, RefusesAnyOtherNumberOfArguments) {
  for (const Words& request : std::vector<Words>{
           {"/bin/mkdir"},
           {"/bin/mkdir", "/a", "/b"},
           {"/bin/rm", "-rf"},
           {"/bin/rm", "-rf", "/a", "/b"},
           {"/usr/bin/ditto", "/a"},
           {"/usr/bin/ditto", "/a", "/b", "/c"},
           {"/bin/chmod", "-R", "0755"},
           {"/bin/mv", "/a"},
       }) {
    ExpectRefused(request, kAuthorizationToolEnvironmentError);
  }
}

TEST_F(HelperToolTableTest, RefusesAnyOtherOption) {
  for (const Words& request : std::vector<Words>{
           {"/bin/rm", "-r", "/a"},
           {"/bin/rm", "-rf ", "/a"},
           {"/bin/rm", "/a", "/b"},
           {"/bin/chmod", "-R", "4755", "/a"},
           {"/bin/chmod", "-R", "755", "/a"},
           {"/bin/chmod", "-v", "0755", "/a"},
           {"/bin/chmod", "-R", "/a", "/b"},
       }) {
    ExpectRefused(request, kAuthorizationToolEnvironmentError);
  }
}

TEST_F(HelperToolTableTest, RefusesPathsThatAreNotAbsolute) {
  for (const char* path : {"", "a", "./a", "../a", "-p", "--target-directory=/etc", "~/a", " /a"}) {
    ExpectRefused({"/bin/mkdir", path}, kAuthorizationToolEnvironmentError);
    ExpectRefused({"/bin/rm", "-rf", path}, kAuthorizationToolEnvironmentError);
    ExpectRefused({"/bin/chmod", "-R", "0755", path}, kAuthorizationToolEnvironmentError);
    for (const char* tool : {"/usr/bin/ditto", "/bin/mv"}) {
      ExpectRefused({tool, path, "/b"}, kAuthorizationToolEnvironmentError);
      ExpectRefused({tool, "/a", path}, kAuthorizationToolEnvironmentError);
    }
  }
}

TEST_F(HelperToolTableTest, DoesNotRepeatTheRequestInItsReason) {
  ExpectRefused({"/bin/\x1B[31mred", "/a"}, kAuthorizationToolExecuteFailure);
  EXPECT_EQ(reason.find('\x1B'), std::string::npos);
  ExpectRefused({"/bin/mkdir", "\x1B[31mred"}, kAuthorizationToolEnvironmentError);
  EXPECT_EQ(reason.find('\x1B'), std::string::npos);
}

TEST_F(HelperToolTableTest, RefusesAToolWhoseProgramCanNotBeExecuted) {
  const std::string script = folder.Write("program", "#!/bin/sh\n", 0644);
  for (const std::string& program :
       {folder.Path("missing"), script, folder.MakeFolder("folder"), std::string()}) {
    const HelperToolTable table({{"/usr/bin/ditto", {{}, {}}, {program}}});
    EXPECT_EQ(table.Resolve({"/usr/bin/ditto", "/a", "/b"}, &command, &reason),
              kAuthorizationToolExecuteFailure)
        << program;
    EXPECT_TRUE(command.empty());
    EXPECT_NE(reason.find(program), std::string::npos);
  }
}

TEST_F(HelperToolTableTest, PutsTheOptionsOfAToolBeforeItsArguments) {
  const std::string script = folder.Write("program", "#!/bin/sh\n", 0755);
  const HelperToolTable table({{"/tool", {{"yes", "no"}, {}}, {script, "--fixed"}}});
  EXPECT_EQ(table.Resolve({"/tool", "no", "/a"}, &command, &reason), kAuthorizationSuccess);
  EXPECT_EQ(command, Words({script, "--fixed", "no", "/a"}));
}

}  // namespace
