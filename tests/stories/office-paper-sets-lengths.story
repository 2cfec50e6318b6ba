# Width and length say the size of the chosen paper; what was typed for the custom size comes back.
product office-c430
entry model
open
set odrv-paper-size custom
set odrv-custom-width "120 mm"
set odrv-paper-size a3
expect odrv-custom-width is "297 mm"
expect odrv-custom-length is "420 mm"
expect odrv-custom-width disabled
set odrv-paper-size custom
expect odrv-custom-width is "120 mm"
expect odrv-custom-width enabled
