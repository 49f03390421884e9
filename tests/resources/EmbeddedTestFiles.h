#pragma once

#include "resources/EmbeddedFile.h"

/// files/every byte.bin: the 256 byte values in ascending order.
extern const EmbeddedFile kEveryByte;
/// files/nothing.bin: an empty file.
extern const EmbeddedFile kNothing;
