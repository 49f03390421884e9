#include "installer/InstallerThread.h"

#include "installer/InstallerUI.h"

void InstallerThread::Run() { RunInstallation(*owner); }
