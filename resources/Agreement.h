#pragma once

#include "resources/EmbeddedFile.h"

/// The licence agreement, an RTF document in ASCII: its bytes are also a C string.
extern const EmbeddedFile kAgreementRtf;
