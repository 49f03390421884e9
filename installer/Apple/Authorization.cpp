#include "installer/Authorization.h"

#include <Security/Authorization.h>

namespace {

/// Authorization Services. Owns one reference from Create until Free.
class AuthorizationServices : public Authorization {
 public:
  ~AuthorizationServices() override { Destroy(); }

  int Create() override {
    Destroy();
    return AuthorizationCreate(nullptr, kAuthorizationEmptyEnvironment, kAuthorizationFlagDefaults,
                               &reference);
  }

  int CopyRights(const std::string& right) override {
    AuthorizationItem item = {right.c_str(), 0, nullptr, 0};
    const AuthorizationRights rights = {1, &item};
    const AuthorizationFlags flags = kAuthorizationFlagInteractionAllowed |
                                     kAuthorizationFlagExtendRights |
                                     kAuthorizationFlagPreAuthorize;
    return AuthorizationCopyRights(reference, &rights, kAuthorizationEmptyEnvironment, flags,
                                   nullptr);
  }

  int ExecuteWithPrivileges(const std::string& tool, const std::vector<std::string>& arguments,
                            FILE** pipe) override {
    *pipe = nullptr;
    std::vector<char*> words;
    for (const std::string& argument : arguments) {
      words.push_back(const_cast<char*>(argument.c_str()));
    }
    words.push_back(nullptr);
    // Deprecated, with no successor that runs a plain system tool without a helper of one's own
    // that has to be signed and registered first.
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wdeprecated-declarations"
    const OSStatus status = AuthorizationExecuteWithPrivileges(
        reference, tool.c_str(), kAuthorizationFlagDefaults, words.data(), pipe);
#pragma clang diagnostic pop
    if (status != errAuthorizationSuccess) {
      *pipe = nullptr;
    }
    return status;
  }

  void Free() override { Destroy(); }

 private:
  // Not virtual, for the destructor's sake.
  void Destroy() {
    if (reference != nullptr) {
      AuthorizationFree(reference, kAuthorizationFlagDestroyRights);
      reference = nullptr;
    }
  }

  AuthorizationRef reference = nullptr;
};

}  // namespace

std::unique_ptr<Authorization> Authorization::ForThisPlatform() {
  return std::make_unique<AuthorizationServices>();
}
