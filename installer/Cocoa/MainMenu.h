#pragma once

/// Gives the application its menu, with Quit as its one command. Main thread,
/// once, before the application has finished launching.
void InstallMainMenu();
