#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

/// The administrator's rights of one installation run, owned by that run.
///
/// The four operations are those of the platform's authorization service, in
/// the order in which a run calls them: Create, CopyRights, then
/// ExecuteWithPrivileges as often as needed, then Free. A run that fails ends
/// without Free; the destructor then gives up the rights all the same, and
/// tools that were accepted before still run to their end.
///
/// All operations may be called on any one thread; none touches the user
/// interface. Status values are the platform's: 0 is success.
class Authorization {
 public:
  virtual ~Authorization() = default;

  /// Prepares an authorization without any rights. Asks nothing.
  virtual int Create() = 0;

  /// Obtains `right`, for example "system.privilege.admin". Blocks for as long
  /// as the user is asked. Not 0 when the user dismissed the question, is
  /// refused, or when nothing on this system can grant rights.
  virtual int CopyRights(const std::string& right) = 0;

  /// Starts `tool` (an absolute path) as administrator with `arguments`, the
  /// tool's own name not among them. Returns the status of the launch, which
  /// says nothing about how the tool ends. On success `*pipe` is a stream that
  /// reads what the tool prints and is at its end when the tool has ended; the
  /// caller owns it. On failure `*pipe` is null.
  virtual int ExecuteWithPrivileges(const std::string& tool,
                                    const std::vector<std::string>& arguments, FILE** pipe) = 0;

  /// Gives the rights up for good. Tools already accepted still finish.
  virtual void Free() = 0;

  /// The service of the platform that the program runs on.
  static std::unique_ptr<Authorization> ForThisPlatform();
};
