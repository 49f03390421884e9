#include "Src/HXUI/Cocoa/KeyState.h"

#include <X11/Xlib.h>
#include <X11/keysym.h>

#include <memory>

namespace {

constexpr int kSpaceCharacter = 32;

struct Key {
  int virtualKey;
  KeySym first;
  /// Another key that does the same, or none.
  KeySym second = NoSymbol;
};

// macOS names keys by their place on a US keyboard, X by what they type. The
// table goes by what is printed on the key, so that it fits any layout.
constexpr Key kKeys[] = {
    {0, XK_a},
    {1, XK_s},
    {2, XK_d},
    {3, XK_f},
    {4, XK_h},
    {5, XK_g},
    {6, XK_z},
    {7, XK_x},
    {8, XK_c},
    {9, XK_v},
    {10, XK_section},
    {11, XK_b},
    {12, XK_q},
    {13, XK_w},
    {14, XK_e},
    {15, XK_r},
    {16, XK_y},
    {17, XK_t},
    {18, XK_1},
    {19, XK_2},
    {20, XK_3},
    {21, XK_4},
    {22, XK_6},
    {23, XK_5},
    {24, XK_equal},
    {25, XK_9},
    {26, XK_7},
    {27, XK_minus},
    {28, XK_8},
    {29, XK_0},
    {30, XK_bracketright},
    {31, XK_o},
    {32, XK_u},
    {33, XK_bracketleft},
    {34, XK_i},
    {35, XK_p},
    {36, XK_Return},
    {37, XK_l},
    {38, XK_j},
    {39, XK_apostrophe},
    {40, XK_k},
    {41, XK_semicolon},
    {42, XK_backslash},
    {43, XK_comma},
    {44, XK_slash},
    {45, XK_n},
    {46, XK_m},
    {47, XK_period},
    {48, XK_Tab},
    {kVirtualKeySpace, XK_space},
    {50, XK_grave},
    {51, XK_BackSpace},
    {53, XK_Escape},
    {54, XK_Super_R},
    // GNUstep takes the left Alt key for Command; the key in Command's place is
    // Super, which window managers leave to the program more often.
    {kVirtualKeyCommand, XK_Alt_L, XK_Super_L},
    {kVirtualKeyShift, XK_Shift_L},
    {57, XK_Caps_Lock},
    {58, XK_Alt_R, XK_ISO_Level3_Shift},
    {59, XK_Control_L},
    {60, XK_Shift_R},
    {61, XK_Alt_R, XK_ISO_Level3_Shift},
    {62, XK_Control_R},
    {64, XK_F17},
    {65, XK_KP_Decimal},
    {67, XK_KP_Multiply},
    {69, XK_KP_Add},
    {71, XK_Clear, XK_Num_Lock},
    {75, XK_KP_Divide},
    {76, XK_KP_Enter},
    {78, XK_KP_Subtract},
    {79, XK_F18},
    {80, XK_F19},
    {81, XK_KP_Equal},
    {82, XK_KP_0},
    {83, XK_KP_1},
    {84, XK_KP_2},
    {85, XK_KP_3},
    {86, XK_KP_4},
    {87, XK_KP_5},
    {88, XK_KP_6},
    {89, XK_KP_7},
    {90, XK_F20},
    {91, XK_KP_8},
    {92, XK_KP_9},
    {96, XK_F5},
    {97, XK_F6},
    {98, XK_F7},
    {99, XK_F3},
    {100, XK_F8},
    {101, XK_F9},
    {103, XK_F11},
    {105, XK_F13},
    {106, XK_F16},
    {107, XK_F14},
    {109, XK_F10},
    {111, XK_F12},
    {113, XK_F15},
    {114, XK_Help, XK_Insert},
    {115, XK_Home},
    {116, XK_Page_Up},
    {117, XK_Delete},
    {118, XK_F4},
    {119, XK_End},
    {120, XK_F2},
    {121, XK_Page_Down},
    {122, XK_F1},
    {123, XK_Left},
    {124, XK_Right},
    {125, XK_Down},
    {126, XK_Up},
};

struct DisplayCloser {
  void operator()(Display* display) const { XCloseDisplay(display); }
};
using DisplayPointer = std::unique_ptr<Display, DisplayCloser>;

/// A connection of our own, kept open: AppKit's is none of our business, and a
/// new one each time would be slow in the middle of a drag. Null without a server.
Display* OpenConnection() {
  static DisplayPointer connection;
  if (!connection) connection.reset(XOpenDisplay(nullptr));
  return connection.get();
}

/// The layout may have changed since the last call.
void ReadNews(Display* display) {
  while (XPending(display) > 0) {
    XEvent event;
    XNextEvent(display, &event);
    if (event.type == MappingNotify) XRefreshKeyboardMapping(&event.xmapping);
  }
}

bool IsDown(Display* display, const char (&keymap)[32], KeySym symbol) {
  if (symbol == NoSymbol) return false;
  const unsigned code = XKeysymToKeycode(display, symbol);
  if (code == 0) return false;
  return ((static_cast<unsigned char>(keymap[code / 8]) >> (code % 8)) & 1U) != 0;
}

}  // namespace

bool IsKeyDown(int keyCode) {
  const int wanted = keyCode == kSpaceCharacter ? kVirtualKeySpace : keyCode;
  for (const Key& key : kKeys) {
    if (key.virtualKey != wanted) continue;
    Display* display = OpenConnection();
    if (display == nullptr) return false;
    ReadNews(display);
    char keymap[32] = {};
    XQueryKeymap(display, keymap);
    return IsDown(display, keymap, key.first) || IsDown(display, keymap, key.second);
  }
  return false;
}
