#pragma once

#import <AppKit/AppKit.h>

#include <cstdint>
#include <string>
#include <vector>

/// What a page of the wizard shows, as far as it depends on the machine.
struct PlainPageContent {
  /// As `InstallerUI::Page`.
  std::uint32_t page = 0;
  std::string welcome;
  /// From top to bottom; whether each box is ticked.
  std::vector<std::string> hosts;
  std::vector<bool> ticked;
  std::string summary;
  /// Of the panel that shows the summary, in pixels.
  CGFloat summaryHeight = 0;
  std::string progress;
  /// The three buttons from left to right, and which of them can be pressed.
  std::string labels[3];
  bool usable[3] = {false, false, false};
  CGFloat buttonX[3] = {0, 0, 0};
  CGFloat buttonWidth[3] = {0, 0, 0};
};

/// One page of the wizard drawn by hand in one view with plain AppKit calls, as
/// somebody would who needs nothing but this picture: all that can be prepared
/// is prepared. Only the agreement is a text view, as it can scroll.
@interface PlainPage : NSView {
  PlainPageContent* content;
  NSImage* banner;
  NSImage* boxes;
  NSDictionary* title;
  NSDictionary* plain;
  NSDictionary* bold;
  NSDictionary* narrow;
  NSDictionary* usableLabel;
  NSDictionary* otherLabel;
  NSView* agreement;
}
- (id)initWithContent:(const PlainPageContent&)shown;
@end
