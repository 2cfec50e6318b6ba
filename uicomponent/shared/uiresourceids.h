#pragma once

/* Numbers of the module's resources; read by the resource compiler too, so macros only. */

#define O7_MANIFEST 2            /* selects version 6 of the common controls */
#define O7_DIALOG_EMPTY_PAGE 101 /* a property page without controls, resized for each tab */
