#pragma once

// The platform's classes by name only, so that plain C++ headers can hold
// pointers to them.
#ifdef __OBJC__
@class HXTextDelegate;
@class HXTopWindow;
@class HXView;
@class HXWindowDelegate;
@class NSBezierPath;
@class NSBitmapImageRep;
@class NSColor;
@class NSFont;
@class NSGraphicsContext;
@class NSImage;
@class NSMenu;
@class NSTimer;
@class NSView;
@class NSWindow;
#else
struct HXTextDelegate;
struct HXTopWindow;
struct HXView;
struct HXWindowDelegate;
struct NSBezierPath;
struct NSBitmapImageRep;
struct NSColor;
struct NSFont;
struct NSGraphicsContext;
struct NSImage;
struct NSMenu;
struct NSTimer;
struct NSView;
struct NSWindow;
#endif
