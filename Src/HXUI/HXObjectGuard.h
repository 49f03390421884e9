#pragma once

class HXObject;

/// Tells whether an object has been destroyed in the meantime. Stands on the
/// stack of whoever calls into a widget or its owner and goes on afterwards,
/// since any callback may delete the widget it comes from. Main thread only.
class HXObjectGuard {
 public:
  /// `object` may be null; then `IsAlive` is false from the start.
  explicit HXObjectGuard(HXObject* object);
  ~HXObjectGuard();
  HXObjectGuard(const HXObjectGuard&) = delete;
  HXObjectGuard& operator=(const HXObjectGuard&) = delete;

  bool IsAlive() const { return watched != nullptr; }
  /// The object, or null once it is gone.
  HXObject* Get() const { return watched; }

  /// Called by the destructor of every object.
  static void ObjectDestroyed(const HXObject* object);

 private:
  HXObject* watched;
  HXObjectGuard* next;
};
