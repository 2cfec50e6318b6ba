# A finisher that is taken out and put in: what hangs on it cannot be chosen, and says why.
product office-c430
entry model
mode 2
open
expect odrv-installed-finisher is office-finisher
set odrv-installed-finisher none
press OK
expect closed

restart mode 1
open
expect odrv-staple disabled reason contains "finisher"
expect odrv-punch disabled reason contains "finisher"
expect odrv-output-bin entry finisher-tray disabled reason contains "finisher"
expect no conflict

restart mode 2
open
set odrv-installed-finisher booklet-finisher
press OK

restart mode 1
open
expect odrv-staple enabled
expect odrv-output-bin entry finisher-tray enabled
expect odrv-staple entry saddle-stitch disabled reason contains "Booklet"
set odrv-booklet true
expect odrv-staple entry saddle-stitch enabled
set odrv-staple saddle-stitch
expect odrv-output-bin entry booklet-tray enabled
expect odrv-output-bin entry main-tray disabled
expect no conflict
press OK
reopen
expect odrv-staple is saddle-stitch
expect odrv-booklet is true
