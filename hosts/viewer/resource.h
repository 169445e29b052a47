#pragma once
// Numbers of the program's resources. Manifest 1 is in force from the start; the server's is
// switched on when the DLL beside the program is wanted.
#define IDR_SERVER_MANIFEST 10
#define IDD_KEYS 20
#define IDC_KEYS_LIST 21
