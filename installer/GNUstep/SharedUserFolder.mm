#include "installer/SharedUserFolder.h"

#import <Foundation/Foundation.h>

#include "installer/Cocoa/SearchPath.h"
#include "support/Paths.h"

std::string SharedUserFolder() {
  const std::string users = FirstSearchPath(NSUserDirectory, NSLocalDomainMask);
  return users.empty() ? std::string() : JoinPath(users, "Shared");
}
