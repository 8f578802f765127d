// The first-run wizard's template and control ids, shared by its .rc file and the code. The
// controls of one page share a block of ten ids, so that a page is shown or hidden as a block.
#pragma once

#define IDD_WELCOME 400
#define IDC_WELCOME_TAB0 401  // + tab index; made in code

#define IDC_WELCOME_NEXT 410
#define IDC_WELCOME_FINISH 411
#define IDC_WELCOME_CANCEL 412
#define IDC_WELCOME_PREVIOUS 413
#define IDC_WELCOME_SHAPE1 414

#define IDC_WELCOME_PAGE0 420  // + 10 per page; the progress page follows the four pages
#define IDC_WELCOME_WELCOME 420
#define IDC_WELCOME_MORE 421
#define IDC_WELCOME_FILETYPES_TEXT 430
#define IDC_WELCOME_FILETYPES 431
#define IDC_WELCOME_CHANGE_FILETYPES 432
#define IDC_WELCOME_DRIVES_TEXT 440
#define IDC_WELCOME_DRIVES 441
#define IDC_WELCOME_READY 450
#define IDC_WELCOME_USE 451
#define IDC_WELCOME_ANIMATION 460
#define IDC_WELCOME_PLEASE_WAIT 461
#define IDC_WELCOME_FOLDERS 462
#define IDC_WELCOME_COUNTER 463
