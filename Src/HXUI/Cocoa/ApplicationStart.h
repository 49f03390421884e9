#pragma once

/// What every application of this toolkit does first: looks for a screen, makes
/// the platform's application object, gives it defaults that the user may still
/// override, and lets the usual signals end the program. Nothing of AppKit may be used
/// before. False when there is no screen: one sentence that begins with
/// `program` stands on standard error then. Once, main thread only, inside an
/// autorelease pool.
bool StartApplication(const char* program);
