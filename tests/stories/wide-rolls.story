# Rolls and memory of the wide-format device, and what they allow.
product wide-w360
entry model
open
expect odrv-paper-tray entry roll-2 enabled
expect odrv-paper-tray entry roll-3 disabled
expect odrv-resolution entry 1200-dpi enabled

restart mode 2
open
set odrv-installed-rolls four
set odrv-installed-memory 2-gb
press OK

restart mode 1
open
expect odrv-paper-tray entry roll-3 enabled
set odrv-paper-tray roll-4
expect odrv-resolution entry 1200-dpi disabled reason contains "memory"
expect odrv-nesting entry any-order disabled
press OK
reopen
expect odrv-paper-tray is roll-4
set odrv-paper-tray roll-1
press Cancel
reopen
expect odrv-paper-tray is roll-4
