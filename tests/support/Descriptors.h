#pragma once

/// The descriptor that the next opened file would get. The same before and after
/// something that leaves no descriptor behind.
int LowestFreeDescriptor();
