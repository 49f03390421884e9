#include "Src/HXUI/Cocoa/AutoreleasePool.h"

#import <Foundation/Foundation.h>

void* AutoreleasePool::Push() { return [[NSAutoreleasePool alloc] init]; }
void AutoreleasePool::Pop(void* pool) { [static_cast<NSAutoreleasePool*>(pool) drain]; }
