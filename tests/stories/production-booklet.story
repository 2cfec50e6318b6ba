# Saddle stitching and booklets belong together; corner staples and folds stay out.
product production-p900
entry model
open
set odrv-paper-size a4
expect odrv-staple entry saddle-stitch disabled reason contains "Booklet"
expect odrv-staple entry four-left enabled
set odrv-booklet true
expect odrv-staple entry saddle-stitch enabled
expect odrv-staple entry four-left disabled
expect odrv-sides disabled reason contains "ooklet"
set odrv-staple saddle-stitch
expect no conflict
set odrv-paper-type synthetic
expect odrv-booklet empty
