#pragma once

// Resources of o7preview.exe, shared with o7preview.rc.
#define IDR_COMMON_CONTROLS 2
#define IDD_ABOUT_PRODUCT 200
#define IDC_ABOUT_TEXT 201
