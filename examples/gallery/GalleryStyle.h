#pragma once

#include "Src/HXUI/HXTypes.h"

/// What the whole gallery looks like: dark, with light text.
namespace GalleryStyle {

inline constexpr HXColor kBackground{45, 45, 45, 255};
/// Behind controls: buttons would vanish on the darker background.
inline constexpr HXColor kPage{70, 70, 70, 255};
inline constexpr HXColor kPanel{30, 30, 30, 255};
inline constexpr HXColor kFrame{100, 100, 100, 255};
inline constexpr HXColor kText{200, 200, 200, 255};
inline constexpr HXColor kAccent{116, 200, 243, 255};
inline constexpr HXColor kWhite{255, 255, 255, 255};
inline constexpr HXColor kTransparent{0, 0, 0, 0};

inline constexpr const char* kFont = "Verdana";
inline constexpr float kTextSize = 11;

}  // namespace GalleryStyle
