#include "tests/Src/HXUI/ToolkitFixture.h"
