#pragma once

/// The platform's autorelease pools for plain C++ code. A pool belongs to the
/// thread that pushed it; pools are popped in reverse order.
namespace AutoreleasePool {

/// Returns the pool's handle, to be given to `Pop`.
void* Push();
void Pop(void* pool);

}  // namespace AutoreleasePool
