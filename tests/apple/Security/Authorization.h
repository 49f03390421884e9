#pragma once

#include <cstddef>
#include <cstdio>

#include "CoreTypes.h"

using AuthorizationRef = const struct AuthorizationOpaqueRef*;
using AuthorizationFlags = UInt32;
using AuthorizationString = const char*;

constexpr OSStatus errAuthorizationSuccess = 0;
constexpr AuthorizationFlags kAuthorizationFlagDefaults = 0;
constexpr AuthorizationFlags kAuthorizationFlagInteractionAllowed = 1U << 0;
constexpr AuthorizationFlags kAuthorizationFlagExtendRights = 1U << 1;
constexpr AuthorizationFlags kAuthorizationFlagDestroyRights = 1U << 3;
constexpr AuthorizationFlags kAuthorizationFlagPreAuthorize = 1U << 4;

struct AuthorizationItem {
  AuthorizationString name;
  std::size_t valueLength;
  void* value;
  UInt32 flags;
};

struct AuthorizationItemSet {
  UInt32 count;
  AuthorizationItem* items;
};
using AuthorizationRights = AuthorizationItemSet;
using AuthorizationEnvironment = AuthorizationItemSet;
#define kAuthorizationEmptyEnvironment nullptr

extern "C" {
OSStatus AuthorizationCreate(const AuthorizationRights* rights,
                             const AuthorizationEnvironment* environment, AuthorizationFlags flags,
                             AuthorizationRef* authorization);
OSStatus AuthorizationCopyRights(AuthorizationRef authorization, const AuthorizationRights* rights,
                                 const AuthorizationEnvironment* environment,
                                 AuthorizationFlags flags, AuthorizationRights** authorizedRights);
[[deprecated]] OSStatus AuthorizationExecuteWithPrivileges(AuthorizationRef authorization,
                                                           const char* pathToTool,
                                                           AuthorizationFlags options,
                                                           char* const* arguments,
                                                           FILE** communicationsPipe);
OSStatus AuthorizationFree(AuthorizationRef authorization, AuthorizationFlags flags);
}
