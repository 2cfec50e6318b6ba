# Binding, covers and staples of the press.
product production-p900
entry model
open
expect odrv-binding entry perfect disabled reason contains "A4"
set odrv-paper-size a4
expect odrv-binding entry perfect enabled
expect odrv-binding entry wire-rings disabled reason contains "binder"
set odrv-binding perfect
expect odrv-covers conflict
expect odrv-staple disabled
set odrv-covers front-and-back
expect no conflict
press OK
reopen
expect odrv-binding is perfect
expect odrv-covers is front-and-back
set odrv-binding none
expect odrv-staple enabled

restart mode 2
open
set odrv-installed-binder ring
press OK
restart mode 4
open
set odrv-paper-size a4
expect odrv-binding entry perfect disabled
expect odrv-binding entry wire-rings enabled
