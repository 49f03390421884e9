#include "Src/HXUI/HXObjectGuard.h"

namespace {

// Guards live on the stack and nest, so the list is at most as long as the
// calls are deep and the newest guard stands first.
HXObjectGuard* newestGuard = nullptr;

}  // namespace

HXObjectGuard::HXObjectGuard(HXObject* object) : watched(object), next(newestGuard) {
  newestGuard = this;
}

HXObjectGuard::~HXObjectGuard() { newestGuard = next; }

void HXObjectGuard::ObjectDestroyed(const HXObject* object) {
  for (HXObjectGuard* guard = newestGuard; guard != nullptr; guard = guard->next) {
    if (guard->watched == object) guard->watched = nullptr;
  }
}
