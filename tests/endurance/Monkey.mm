#include "tests/endurance/Monkey.h"

#include <typeinfo>
#include <utility>
#include <vector>

#import "Src/HXUI/Cocoa/HXView.h"
#include "Src/HXUI/HXSystemButton.h"
#import "tests/Src/HXUI/NativeEvents.h"
#include "tests/endurance/EventHand.h"

/// Calls once, in one mode of the run loop. A timer that belongs to several modes would
/// stay behind in those that never run.
@interface MonkeyClock : NSObject {
 @public
  Monkey* monkey;
  NSString* mode;
  BOOL isSet;
}
- (void)set;
- (void)tick;
@end

@implementation MonkeyClock
- (void)set {
  if (isSet) return;
  isSet = YES;
  [self performSelector:@selector(tick)
             withObject:nil
             afterDelay:0
                inModes:[NSArray arrayWithObject:mode]];
}
- (void)tick {
  isSet = NO;
  monkey->Tick();
}
@end

namespace {

/// What it does between two turns of the run loop, in which timers fire and windows are drawn.
constexpr int kBurst = 20;
/// Somebody else's loop ends after few of them.
constexpr int kBurstInMenu = 4;

/// Nobody sends a single movement, a single notch of the wheel or a single key.
constexpr int kStroke = 20;
constexpr int kTurns = 10;
constexpr int kKeys = 4;

HXPoint InWindow(const HXWindow& window, const HXObject& widget, HXPoint point) {
  if (&widget == &window) return point;
  const HXPoint offset = window.GetOffsetOf(widget);
  return {offset.x + point.x, offset.y + point.y};
}

NSString* PickCharacters(Dice& dice) {
  static const unichar kSpecial[] = {
      '\t',
      0x19,
      '\r',
      0x1B,
      0x7F,
      '\b',
      0x03,
      ' ',
      '.',
      ',',
      '-',
      '|',
      '/',
      NSUpArrowFunctionKey,
      NSDownArrowFunctionKey,
      NSLeftArrowFunctionKey,
      NSRightArrowFunctionKey,
      NSHomeFunctionKey,
      NSEndFunctionKey,
      NSPageUpFunctionKey,
      NSPageDownFunctionKey,
      NSDeleteFunctionKey,
      NSF1FunctionKey,
      0xE9,
      0x20AC,
      0xD83D,
      0x3042,
  };
  constexpr std::size_t kSpecialCount = sizeof(kSpecial) / sizeof(kSpecial[0]);
  const unichar character = dice.OnceIn(2) ? kSpecial[dice.Below(kSpecialCount)]
                                           : static_cast<unichar>(dice.Between('!', '~'));
  return [NSString stringWithCharacters:&character length:1];
}

NSUInteger PickModifiers(Dice& dice) {
  static const NSUInteger kModifiers[] = {NSShiftKeyMask, NSControlKeyMask, NSAlternateKeyMask,
                                          NSCommandKeyMask};
  return dice.OnceIn(6) ? kModifiers[dice.Below(4)] : 0;
}

/// Whether somebody else's loop is running.
bool IsInterrupted() { return [NSApp modalWindow] != nil || EventHand::IsTracking(); }

HXWindow* ToolkitWindow(NSWindow* window) {
  NSView* content = [window contentView];
  if (![content isKindOfClass:[HXView class]]) return nullptr;
  return dynamic_cast<HXWindow*>([static_cast<HXView*>(content) getObject]);
}

}  // namespace

Monkey::Monkey(std::uint64_t seed, std::set<std::string> reluctantly,
               std::function<HXWindow&()> window)
    : dice(seed), trail(seed), slowButtons(std::move(reluctantly)), findWindow(std::move(window)) {
  NSString* const modes[] = {NSDefaultRunLoopMode, NSModalPanelRunLoopMode,
                             NSEventTrackingRunLoopMode};
  for (std::size_t i = 0; i < clocks.size(); ++i) {
    clocks[i] = [[MonkeyClock alloc] init];
    clocks[i]->monkey = this;
    clocks[i]->mode = modes[i];
  }
}

Monkey::~Monkey() {
  for (MonkeyClock* clock : clocks) {
    [NSObject cancelPreviousPerformRequestsWithTarget:clock];
    [clock release];
  }
}

void Monkey::SetClocks() {
  for (MonkeyClock* clock : clocks) [clock set];
}

void Monkey::Play(std::uint64_t count) {
  wanted = sent + count;
  SetClocks();
  while (sent < wanted || depth > 0 || [NSApp modalWindow] != nil) {
    @autoreleasepool {
      NSEvent* event = [NSApp nextEventMatchingMask:NSAnyEventMask
                                          untilDate:[NSDate dateWithTimeIntervalSinceNow:0.05]
                                             inMode:NSDefaultRunLoopMode
                                            dequeue:YES];
      if (event != nil) [NSApp sendEvent:event];
    }
  }
}

void Monkey::Tick() {
  // First of all: what follows may run a loop of its own, in which to go on.
  SetClocks();
  // Making a window serves events as well.
  if (isRenewing) return;
  ++depth;
  const int burst = EventHand::IsTracking() ? kBurstInMenu : kBurst;
  bool goesOn = true;
  for (int i = 0; i < burst && goesOn; ++i) {
    @autoreleasepool {
      goesOn = sent < wanted && PlayOneEvent();
    }
  }
  if (sent >= wanted) PutAway();
  --depth;
}

bool Monkey::PlayOneEvent() {
  NSWindow* panel = [NSApp modalWindow];
  if (panel != nil && ToolkitWindow(panel) == nullptr) {
    PlayWithPanel(panel);
    return false;
  }
  HXWindow* window = FindWindow();
  if (window == nullptr) return false;
  PlayWithWindow(*window);
  return true;
}

void Monkey::PlayWithWindow(HXWindow& window) {
  if (&window != main || EventHand::IsTracking()) ++interruptions;
  HXObject& widget = PickWidget(window);
  const std::uint32_t choice = dice.Below(100);
  if (choice < 30) return Move(window, widget);
  if (choice < 45) return PressOrRelease(widget);
  if (choice < 60) return Click(window, widget);
  if (choice < 66) return UseOtherButton(widget);
  if (choice < 74) return TurnWheel(window, widget);
  if (choice < 80) return Cross(widget);
  if (!dice.OnceIn(1000)) return Type(window);
  if (&window == main && !EventHand::IsTracking()) HandleWindow(window);
}

HXWindow* Monkey::FindWindow() {
  if (main == nullptr || (main->IsClosed() && depth == 1 && !IsInterrupted())) {
    isRenewing = true;
    main = &findWindow();
    isRenewing = false;
    ++windowCount;
    isButtonDown = false;
  }
  NSWindow* modal = [NSApp modalWindow];
  HXWindow* window = modal == nil ? main : ToolkitWindow(modal);
  // A closed one is about to return from its modal run.
  return window->IsClosed() ? nullptr : window;
}

HXObject& Monkey::PickWidget(HXWindow& window) {
  HXObject* widget = &window;
  while (!dice.OnceIn(8)) {
    std::vector<HXObject*> choice;
    for (HXObject* child : widget->GetChildren()) {
      const bool isWindow = dynamic_cast<HXWindow*>(child) != nullptr;
      if (child->IsVisible() && !child->IsClosed() && !isWindow) choice.push_back(child);
    }
    if (choice.empty()) break;
    widget = choice[dice.Below(choice.size())];
  }
  const auto* button = dynamic_cast<HXSystemButton*>(widget);
  const bool isSlow = button != nullptr && slowButtons.contains(button->GetLabel());
  return isSlow && !dice.OnceIn(100) ? window : *widget;
}

HXPoint Monkey::PickPoint(const HXObject& widget) {
  constexpr int kAround = 3;
  const HXSize size = widget.GetSize();
  return {dice.Between(-kAround, size.width + kAround),
          dice.Between(-kAround, size.height + kAround)};
}

void Monkey::Note(const char* action, const HXObject& widget, HXPoint point, unsigned detail) {
  trail.Add({sent, action, typeid(widget).name(), point.x, point.y, detail});
  ++sent;
}

// What it does with a widget

void Monkey::Move(HXWindow& window, HXObject& widget) {
  const HXPoint point = PickPoint(widget);
  const HXPoint step{dice.Between(-3, 3), dice.Between(-3, 3)};
  HXPoint place = InWindow(window, widget, point);
  EventHand::Point(widget, point);
  for (int i = 0; i < kStroke; ++i) {
    // Whatever is under the pointer now may have done anything with the window.
    if (FindWindow() != &window) return;
    Note("move", window, place, isButtonDown ? 1 : 0);
    EventHand::Mouse(isButtonDown ? NSLeftMouseDragged : NSMouseMoved, window, place, 0, 0);
    place = {place.x + step.x, place.y + step.y};
  }
}

void Monkey::PressOrRelease(HXObject& widget) {
  const HXPoint point = PickPoint(widget);
  // Once in a while a press or a release gets lost.
  isButtonDown = dice.OnceIn(10) ? isButtonDown : !isButtonDown;
  const int clicks = dice.Between(1, 3);
  const NSUInteger modifiers = PickModifiers(dice);
  Note(isButtonDown ? "press" : "release", widget, point, static_cast<unsigned>(clicks));
  EventHand::Point(widget, point);
  EventHand::Mouse(isButtonDown ? NSLeftMouseDown : NSLeftMouseUp, widget, point, clicks,
                   modifiers);
}

void Monkey::Click(HXWindow& window, HXObject& widget) {
  const HXPoint point = PickPoint(widget);
  const HXPoint place = InWindow(window, widget, point);
  Note("click, press", widget, point, 0);
  EventHand::Point(widget, point);
  EventHand::Mouse(NSLeftMouseDown, widget, point, 1, 0);
  // What the press has done may have taken the widget away, or opened a menu.
  HXWindow* present = FindWindow();
  if (present == nullptr) return;
  Note("click, release", *present, place, 0);
  EventHand::Mouse(NSLeftMouseUp, *present, place, 1, 0);
}

void Monkey::UseOtherButton(HXObject& widget) {
  static const NSEventType kTypes[] = {NSRightMouseDown, NSRightMouseUp, NSRightMouseDragged,
                                       NSOtherMouseDown, NSOtherMouseUp, NSOtherMouseDragged};
  const HXPoint point = PickPoint(widget);
  const NSEventType type = kTypes[dice.Below(6)];
  Note("other button", widget, point, static_cast<unsigned>(type));
  EventHand::Mouse(type, widget, point, dice.Between(1, 2), 0);
}

void Monkey::TurnWheel(HXWindow& window, HXObject& widget) {
  const HXPoint place = InWindow(window, widget, PickPoint(widget));
  const int lines = dice.Between(-12, 12);
  for (int i = 0; i < kTurns; ++i) {
    if (FindWindow() != &window) return;
    Note("wheel", window, place, static_cast<unsigned>(lines + 12));
    EventHand::Wheel(window, place, lines / 4.0);
  }
}

void Monkey::Cross(HXObject& widget) {
  const HXPoint point = PickPoint(widget);
  const bool enters = dice.OnceIn(2);
  Note(enters ? "enter" : "leave", widget, point, 0);
  EventHand::Cross(enters ? NSMouseEntered : NSMouseExited, widget, point);
}

void Monkey::Type(HXWindow& window) {
  for (int i = 0; i < kKeys; ++i) {
    if (FindWindow() != &window) return;
    NSString* characters = PickCharacters(dice);
    const NSUInteger modifiers = PickModifiers(dice);
    Note("key down", window, {}, [characters characterAtIndex:0]);
    NSWindow* native = [window.GetNativeView() window];
    EventHand::Key(NSKeyDown, native, characters, modifiers);
    if (FindWindow() != &window) return;
    Note("key up", window, {}, [characters characterAtIndex:0]);
    EventHand::Key(NSKeyUp, native, characters, modifiers);
  }
}

void Monkey::HandleWindow(HXWindow& window) {
  const int choice = dice.Between(0, 3);
  const HXSize size{dice.Between(1, 1000), dice.Between(1, 700)};
  Note("window", window, {size.width, size.height}, static_cast<unsigned>(choice));
  switch (choice) {
    case 0:
      window.SetSize(size);
      break;
    case 1:
      window.SetPosition({size.width / 2, size.height / 2});
      break;
    case 2:
      window.SetVisible(false);
      window.SetVisible(true);
      break;
    default:
      [[window.GetNativeView() window] performClose:nil];
  }
}

void Monkey::PlayWithPanel(NSWindow* panel) {
  ++interruptions;
  ++sent;
  // Its inside is the platform's own; it may also make and remove folders.
  if (![panel isKindOfClass:[NSSavePanel class]]) return [NSApp abortModal];
  if (dice.OnceIn(2)) {
    [static_cast<NSSavePanel*>(panel) cancel:nil];
  } else {
    [static_cast<NSSavePanel*>(panel) ok:nil];
  }
}

// The end

void Monkey::LeaveMenu() {
  for (const NSEventType type : {NSLeftMouseDown, NSLeftMouseUp}) {
    [NSApp postEvent:MouseEvent(type, nil, NSMakePoint(-1, -1)) atStart:NO];
  }
}

void Monkey::PutAway() {
  NSWindow* modal = [NSApp modalWindow];
  if (EventHand::IsTracking()) return LeaveMenu();
  if (modal == nil) return;
  if (HXWindow* window = ToolkitWindow(modal)) {
    window->EndModal();
  } else if ([modal isKindOfClass:[NSSavePanel class]]) {
    [static_cast<NSSavePanel*>(modal) cancel:nil];
  } else {
    [NSApp abortModal];
  }
}
