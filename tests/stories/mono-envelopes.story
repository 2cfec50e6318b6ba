# Size and type of an envelope belong together; each alone is a conflict or cannot be chosen.
product mono-m210
entry model
open
set odrv-paper-size envelope-dl
expect odrv-paper-type conflict
expect odrv-paper-type entry plain disabled
expect odrv-paper-type entry envelope enabled
set odrv-paper-type envelope
expect no conflict
expect odrv-sides entry two-sided-long-edge disabled
set odrv-paper-size a4
expect odrv-paper-type conflict
set odrv-paper-type plain
expect no conflict
