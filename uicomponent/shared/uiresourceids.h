#pragma once

/* Numbers of the module's resources; read by the resource compiler too, so macros only. */

#define O7_MANIFEST 2            /* selects version 6 of the common controls */
#define O7_DIALOG_EMPTY_PAGE 101 /* a property page without controls, resized for each tab */

/* Signs of the bitmap buttons, 32 x 32: normal and disabled. */
#define O7_BITMAP_ADD 201
#define O7_BITMAP_ADD_DISABLED 202
#define O7_BITMAP_REMOVE 203
#define O7_BITMAP_REMOVE_DISABLED 204
#define O7_BITMAP_MOVE_UP 205
#define O7_BITMAP_MOVE_UP_DISABLED 206
#define O7_BITMAP_MOVE_DOWN 207
#define O7_BITMAP_MOVE_DOWN_DISABLED 208
