# A roll that is not there cannot be printed on; a board feed that is put in opens its slot.
product photo-x150
entry model
open
expect odrv-paper-tray entry roll-1 enabled
expect odrv-paper-tray entry straight-feed disabled
expect odrv-cut disabled reason contains "roll"
set odrv-paper-tray roll-1
expect odrv-cut enabled
press Cancel

restart mode 2
open
set odrv-installed-rolls none
set odrv-installed-board-feed true
set odrv-installed-cutter false
press OK

restart mode 1
open
expect odrv-paper-tray entry roll-1 disabled reason contains "roll"
expect odrv-paper-tray entry straight-feed disabled reason contains "art"
set odrv-paper-type art-board
expect odrv-paper-tray entry straight-feed enabled
expect odrv-cut disabled reason contains "cutter"
expect no conflict
