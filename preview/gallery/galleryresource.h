#pragma once

// Also read by the resource compiler.
#define IDR_GALLERY_PICTURE 301
