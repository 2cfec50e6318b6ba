# A small device: what becomes possible with a tray, a storage card and a duplex unit.
product mono-m210
entry model
open
expect odrv-paper-tray entry tray-2 disabled
expect odrv-job-type entry secure disabled
expect odrv-sides enabled
expect odrv-manual-two-sided empty

restart mode 2
open
set odrv-installed-trays two
set odrv-installed-storage-card true
set odrv-installed-duplex-unit false
press Apply
expect open
expect odrv-tray-2-size enabled
press OK

restart mode 1
open
expect odrv-paper-tray entry tray-2 enabled
expect odrv-job-type entry secure enabled
expect odrv-sides disabled reason contains "duplex unit"
expect odrv-manual-two-sided enabled
set odrv-manual-two-sided true
set odrv-paper-tray tray-2
expect odrv-paper-type entry labels enabled
press OK
reopen
expect odrv-manual-two-sided is true
expect odrv-paper-tray is tray-2
expect no conflict
