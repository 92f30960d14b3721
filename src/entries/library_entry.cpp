// Entry of the Windows library, called by the loader itself: there is no run-time to start.
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "entries/retained.h"

extern "C" BOOL WINAPI DllMainCRTStartup(HINSTANCE library, DWORD reason, LPVOID /*reserved*/) {
  if (reason == DLL_PROCESS_ATTACH) DisableThreadLibraryCalls(library);
  if (reason == DLL_PROCESS_DETACH) trelvin::release();
  return TRUE;
}
