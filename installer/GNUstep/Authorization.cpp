#include "installer/Authorization.h"

#include "installer/GNUstep/AuthorizationByHelper.h"
#include "installer/GNUstep/HelperLauncher.h"

std::unique_ptr<Authorization> Authorization::ForThisPlatform() {
  return std::make_unique<AuthorizationByHelper>(HelperLauncher::ForThisProcess());
}
