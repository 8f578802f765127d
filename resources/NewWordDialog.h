// The Add New Word dialog's template and control ids, shared by its .rc file and the code.
#pragma once

#define IDD_NEWWORD 200
#define IDC_NEWWORD_WORD 201
#define IDC_NEWWORD_FILENAME 202
#define IDC_NEWWORD_BROWSE 203
