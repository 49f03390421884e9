#pragma once

#include "CoreTypes.h"

struct FSRef {
  std::uint8_t hidden[80];
};
constexpr SInt16 kOnAppropriateDisk = -32767;
constexpr OSType kSharedUserDataFolderType = 0x73646174;  // 'sdat'
constexpr Boolean kDontCreateFolder = 0;
constexpr OSErr noErr = 0;

extern "C" {
OSErr FSFindFolder(SInt16 volume, OSType folderType, Boolean createFolder, FSRef* folder);
CFURLRef CFURLCreateFromFSRef(CFAllocatorRef allocator, const FSRef* file);
}
