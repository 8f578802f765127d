// Resource ids, shared by quorin.rc and the code.
#pragma once

// The program icon has the lowest id, so that the shell shows it for quorin.exe.
#define IDI_QUORIN 1
// The tray icon while the index is being built.
#define IDI_INDEXING 2
// The splash window's picture.
#define IDB_SPLASH 101
