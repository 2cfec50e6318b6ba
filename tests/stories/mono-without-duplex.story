# Without its duplex unit the device prints on one side, whatever was chosen before and whatever a
# program asks for.
product mono-m210
entry model
open
set odrv-sides two-sided-long-edge
press OK
expect document duplex is long

restart mode 2
open
set odrv-installed-duplex-unit false
press OK

restart mode 1
document duplex long
open
expect odrv-sides is one-sided
expect odrv-sides disabled reason contains "duplex unit"
expect no conflict
press OK
expect document duplex is none

restart mode 2
open
set odrv-installed-duplex-unit true
press OK
restart mode 1
open
expect odrv-sides enabled
