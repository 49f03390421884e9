#include "Src/HXUI/HXControl.h"

#include "Src/HXUI/HXObjectGuard.h"

void HXControl::SetChangeHandler(ChangeHandler newHandler, HXObject* newTarget,
                                 std::uint32_t newCommandId) {
  handler = newHandler;
  target = newTarget;
  commandId = newCommandId;
}

bool HXControl::NotifyChange(HXObject* self, int notification) {
  if (handler == nullptr) return true;
  const HXObjectGuard guard(self);
  handler(target, commandId, this, notification);
  return guard.IsAlive();
}
