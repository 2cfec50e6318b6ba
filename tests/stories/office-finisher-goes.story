# Saddle stitch is chosen and its finisher goes: what hangs on it goes along, and what was chosen can
# be settled where it stands.
product office-c430
entry model
mode 2
open
set odrv-installed-finisher booklet-finisher
press OK
restart mode 4
open
set odrv-booklet true
set odrv-staple saddle-stitch
press OK

restart mode 2
open
expect odrv-installed-punch-kit is true
set odrv-installed-finisher none
expect odrv-installed-punch-kit is false
expect odrv-installed-punch-kit disabled reason contains "finisher"
press OK

restart mode 1
open
expect odrv-staple conflict reason contains "finisher"
expect odrv-staple enabled
expect count conflicts 1
set odrv-staple none
expect no conflict
expect odrv-staple disabled reason contains "finisher"
