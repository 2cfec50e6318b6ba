# The type of an envelope follows its size; another one that was chosen before is a conflict, and can
# be set to what is left.
product mono-m210
entry model
open
set odrv-paper-size envelope-dl
expect odrv-paper-type is envelope
expect odrv-paper-type entry plain disabled
expect no conflict
expect odrv-sides entry two-sided-long-edge disabled
set odrv-paper-size a4
expect odrv-paper-type is plain
expect no conflict

set odrv-paper-type recycled
set odrv-paper-size envelope-dl
expect odrv-paper-type conflict
expect odrv-paper-type entry envelope enabled
set odrv-paper-type envelope
expect no conflict
set odrv-paper-size a4
expect odrv-paper-type conflict
set odrv-paper-type plain
expect no conflict
