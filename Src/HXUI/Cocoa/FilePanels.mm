#include "Src/HXUI/Cocoa/FilePanels.h"

#import <AppKit/AppKit.h>

#include <algorithm>

#include "Src/HXUI/Cocoa/Conversions.h"
#include "Src/HXUI/FileTypeFilter.h"

/// Lets the user open folders to look around in, and choose no file. For a list
/// of types without any: to the platforms an empty list means every file.
@interface NoFileFilter : NSObject <NSOpenSavePanelDelegate>
@end

@implementation NoFileFilter

- (BOOL)isFolder:(NSString*)path {
  BOOL folder = NO;
  return path != nil &&
         [[NSFileManager defaultManager] fileExistsAtPath:path isDirectory:&folder] && folder;
}

- (BOOL)panel:(id)sender shouldShowFilename:(NSString*)path {
  (void)sender;
  return [self isFolder:path];
}

- (BOOL)panel:(id)sender shouldEnableURL:(NSURL*)url {
  (void)sender;
  return [self isFolder:[url path]];
}

@end

namespace {

/// Gives the button the room for its title, at the expense of what stands to the
/// left of it in its row.
void WidenToTitle(NSView* button, CGFloat wanted) {
  const NSRect frame = [button frame];
  NSMutableArray* row = [NSMutableArray array];
  CGFloat room = NSMinX(frame);
  for (NSView* view in [[button superview] subviews]) {
    const NSRect other = [view frame];
    if (NSMinX(other) >= NSMinX(frame) || NSMaxY(other) <= NSMinY(frame) ||
        NSMinY(other) >= NSMaxY(frame)) {
      continue;
    }
    [row addObject:view];
    room = std::min(room, NSMinX(other));
  }
  const CGFloat added = std::min(wanted - NSWidth(frame), room);
  if (added <= 0) return;
  for (NSView* view in row) {
    [view setFrameOrigin:NSMakePoint(NSMinX([view frame]) - added, NSMinY([view frame]))];
  }
  [button setFrame:NSMakeRect(NSMinX(frame) - added, NSMinY(frame), NSWidth(frame) + added,
                              NSHeight(frame))];
  [[button superview] setNeedsDisplay:YES];
}

/// The control below `view` that shows `cell`. The cell itself does not know
/// before it has been drawn once.
NSControl* ControlOf(NSCell* cell, NSView* view) {
  if ([view isKindOfClass:[NSControl class]] && [static_cast<NSControl*>(view) cell] == cell) {
    return static_cast<NSControl*>(view);
  }
  for (NSView* child in [view subviews]) {
    NSControl* found = ControlOf(cell, child);
    if (found != nil) return found;
  }
  return nil;
}

void SetPrompt(NSSavePanel* panel, const std::string& prompt) {
  NSString* text = ToNative(prompt);
  if ([text length] == 0) return;
  // GNUstep takes the prompt for the label of the name field and leaves the
  // button alone. On macOS these corrections change nothing.
  NSString* label = [[[panel nameFieldLabel] retain] autorelease];
  [panel setPrompt:text];
  if (label != nil) [panel setNameFieldLabel:label];
  NSButtonCell* cell = [panel defaultButtonCell];
  [cell setTitle:text];
  NSControl* button = cell == nil ? nil : ControlOf(cell, [panel contentView]);
  if (button != nil) WidenToTitle(button, [cell cellSize].width);
}

void SetStart(NSSavePanel* panel, const char* directory) {
  if (directory == nullptr || *directory == '\0') return;
  NSString* path = ToNative(std::string(directory));
  if (path != nil) [panel setDirectoryURL:[NSURL fileURLWithPath:path isDirectory:YES]];
}

NSArray* ToArray(const std::vector<std::string>& types) {
  NSMutableArray* array = [NSMutableArray array];
  for (const std::string& type : types) [array addObject:ToNative(type)];
  return array;
}

/// True when the user confirmed. A panel that breaks down counts as cancelled.
bool Run(NSSavePanel* panel) {
  // There is one panel for all runs. Window managers take the frame off a window
  // that is put away, and GNUstep then moves it as if it had none, which makes it
  // too large. A window that is made anew for each run has no such past.
  [panel setOneShot:YES];
  bool confirmed = false;
  @try {
    confirmed = [panel runModal] == NSOKButton;
  } @catch (NSException* exception) {
    NSLog(@"The file dialog ended early: %@", [exception reason]);
  }
  // One that was not ended by its own buttons is still there.
  [panel orderOut:nil];
  return confirmed;
}

std::vector<std::string> PathsOf(NSOpenPanel* panel) {
  std::vector<std::string> paths;
  for (NSURL* url in [panel URLs]) paths.push_back(FromNative([url path]));
  return paths;
}

}  // namespace

std::string ChooseFolder(const std::string& prompt, const std::string& startDirectory) {
  NSOpenPanel* panel = [NSOpenPanel openPanel];
  [panel setCanChooseFiles:NO];
  [panel setCanChooseDirectories:YES];
  [panel setCanCreateDirectories:YES];
  [panel setAllowsMultipleSelection:NO];
  SetPrompt(panel, prompt);
  SetStart(panel, startDirectory.c_str());
  if (!Run(panel)) return {};
  const std::vector<std::string> paths = PathsOf(panel);
  return paths.empty() ? std::string() : paths.front();
}

std::string ChooseSaveFile(const std::string& prompt, const char* startDirectory,
                           const char* filter) {
  NSSavePanel* panel = [NSSavePanel savePanel];
  SetPrompt(panel, prompt);
  const std::vector<std::string> types =
      filter == nullptr ? std::vector<std::string>() : FileTypeFilter::TypesToSave(filter);
  [panel setAllowedFileTypes:types.empty() ? nil : ToArray(types)];
  SetStart(panel, startDirectory);
  return Run(panel) ? FromNative([[panel URL] path]) : std::string();
}

std::vector<std::string> ChooseOpenFiles(const std::string& prompt, const char* startDirectory,
                                         const char* filter, bool allowMultiple) {
  NSOpenPanel* panel = [NSOpenPanel openPanel];
  [panel setCanChooseFiles:YES];
  [panel setCanChooseDirectories:NO];
  [panel setCanCreateDirectories:NO];
  [panel setAllowsMultipleSelection:allowMultiple ? YES : NO];
  SetPrompt(panel, prompt);
  NoFileFilter* nothing = nil;
  if (filter == nullptr) {
    [panel setAllowedFileTypes:nil];
  } else {
    const std::vector<std::string> types = FileTypeFilter::TypesToOpen(filter);
    [panel setAllowedFileTypes:types.empty() ? nil : ToArray(types)];
    if (types.empty()) nothing = [[[NoFileFilter alloc] init] autorelease];
  }
  if (nothing != nil) [panel setDelegate:nothing];
  SetStart(panel, startDirectory);
  const bool confirmed = Run(panel);
  if (nothing != nil) [panel setDelegate:nil];
  return confirmed ? PathsOf(panel) : std::vector<std::string>();
}
