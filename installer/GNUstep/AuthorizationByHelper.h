#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include "installer/Authorization.h"
#include "installer/GNUstep/HelperChannel.h"
#include "installer/GNUstep/HelperLauncher.h"

/// `Authorization` by means of one root helper, which lives from CopyRights
/// until the rights are given up and its last tool has ended.
///
/// Tools run one after another in the order of their launches. A helper that
/// has died is noticed at the next launch, which fails at once, as do all that
/// follow.
class AuthorizationByHelper : public Authorization {
 public:
  explicit AuthorizationByHelper(HelperLauncher launcher);

  int Create() override;
  /// Grants "system.privilege.admin" and nothing else. Rights that are held already are kept.
  int CopyRights(const std::string& right) override;
  int ExecuteWithPrivileges(const std::string& tool, const std::vector<std::string>& arguments,
                            FILE** pipe) override;
  void Free() override;

 private:
  int GiveUp(int status);

  HelperLauncher launcher;
  HelperChannel channel;
};
