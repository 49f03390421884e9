#pragma once

/// Gives the application its menu: Quit, and the commands of text editing,
/// whose keys work only through a menu. Main thread, once, before the
/// application has finished launching.
void InstallGalleryMenu();
