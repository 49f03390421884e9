#include "installer/Cocoa/PlatformInstallationWorld.h"

#include <sys/wait.h>

#include <cstdlib>
#include <utility>

#include "installer/Cocoa/BundleResources.h"
#include "installer/DataPaths.h"
#include "support/Files.h"

PlatformInstallationWorld::PlatformInstallationWorld(std::function<void()> redraw)
    : requestRedraw(std::move(redraw)) {}

std::unique_ptr<Authorization> PlatformInstallationWorld::MakeAuthorization() {
  return Authorization::ForThisPlatform();
}

std::string PlatformInstallationWorld::ResourcePath(const std::string& name,
                                                    const std::string& type) {
  return FindBundleResource(name, type);
}

std::string PlatformInstallationWorld::DataPath(std::int32_t kind) { return GetDataPath(kind); }

bool PlatformInstallationWorld::PathExists(const std::string& path) { return FileExists(path); }

bool PlatformInstallationWorld::HasEnvironment(const std::string& name) {
  return std::getenv(name.c_str()) != nullptr;
}

void PlatformInstallationWorld::WaitForChild(std::int32_t pid) {
  int status = 0;
  waitpid(pid, &status, 0);
}

void PlatformInstallationWorld::RequestRedraw() { requestRedraw(); }
