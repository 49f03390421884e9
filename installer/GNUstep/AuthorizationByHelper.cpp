#include "installer/GNUstep/AuthorizationByHelper.h"

#include <utility>

#include "installer/GNUstep/AuthorizationStatus.h"

AuthorizationByHelper::AuthorizationByHelper(HelperLauncher launcher)
    : launcher(std::move(launcher)) {}

int AuthorizationByHelper::Create() {
  channel.Close();
  return kAuthorizationSuccess;
}

int AuthorizationByHelper::CopyRights(const std::string& right) {
  if (right != "system.privilege.admin") {
    return kAuthorizationDenied;
  }
  if (channel.IsOpen()) {
    return kAuthorizationSuccess;
  }
  channel = HelperChannel(launcher.Start());
  if (!channel.IsOpen()) {
    return kAuthorizationToolExecuteFailure;
  }
  HelperMessage hello;
  if (channel.Receive(&hello, nullptr) == HelperChannel::Receipt::kMessage &&
      hello.kind == HelperMessage::Kind::kHello) {
    return kAuthorizationSuccess;
  }
  // pkexec does not tell a dismissed question from a refusal.
  return GiveUp(launcher.Asks() ? kAuthorizationCanceled : kAuthorizationToolExecuteFailure);
}

int AuthorizationByHelper::ExecuteWithPrivileges(const std::string& tool,
                                                 const std::vector<std::string>& arguments,
                                                 FILE** pipe) {
  *pipe = nullptr;
  if (!channel.IsOpen()) {
    return kAuthorizationInvalidReference;
  }
  HelperMessage request(HelperMessage::Kind::kRequest, {tool});
  request.words.insert(request.words.end(), arguments.begin(), arguments.end());
  if (!request.Encode()) {
    return kAuthorizationToolEnvironmentError;
  }
  HelperMessage answer;
  HelperDescriptor readEnd;
  if (!channel.Send(request) ||
      channel.Receive(&answer, &readEnd) != HelperChannel::Receipt::kMessage || !answer.Status()) {
    return GiveUp(kAuthorizationToolExecuteFailure);
  }
  if (*answer.Status() != kAuthorizationSuccess) {
    return *answer.Status();
  }
  *pipe = ::fdopen(readEnd.Number(), "r");
  if (*pipe == nullptr) {
    return kAuthorizationInternal;
  }
  readEnd.Release();
  return kAuthorizationSuccess;
}

void AuthorizationByHelper::Free() { channel.Close(); }

int AuthorizationByHelper::GiveUp(int status) {
  channel.Close();
  return status;
}
