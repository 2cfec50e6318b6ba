# Labels cannot be printed on both sides: two ways out of the conflict, and it may also be kept.
product office-c430
entry model
open
set odrv-sides two-sided-long-edge
expect no conflict
set odrv-paper-type labels
expect odrv-sides conflict reason contains "abels"
expect count conflicts 1
set odrv-sides one-sided
expect no conflict
expect odrv-sides no conflict

set odrv-paper-type plain
set odrv-sides two-sided-long-edge
set odrv-paper-type labels
expect odrv-sides conflict
set odrv-paper-type plain
expect no conflict
expect odrv-sides is two-sided-long-edge
press OK
reopen
expect odrv-sides is two-sided-long-edge
