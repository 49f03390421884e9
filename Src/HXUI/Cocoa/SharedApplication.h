#pragma once

/// Makes the platform's application object. Main thread, once, and before
/// anything that asks the platform for pictures of its own.
void MakeSharedApplication();
