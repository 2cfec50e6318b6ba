# Booklet decides about sides and pages per sheet: what will be printed is shown, and told to
# programs; the person's own choice comes back with the end of the booklet.
product office-c430
entry model
open
set odrv-pages-per-sheet 4
set odrv-booklet true
expect odrv-sides is two-sided-short-edge
expect odrv-sides disabled reason contains "ooklet"
expect odrv-pages-per-sheet is 2
press OK
expect document duplex is short
reopen
expect odrv-sides is two-sided-short-edge
set odrv-booklet false
expect odrv-sides is one-sided
expect odrv-sides enabled
expect odrv-pages-per-sheet is 4
press OK
expect document duplex is none
