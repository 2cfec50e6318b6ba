# Settings of several pages at once, all of them private.
product production-p900
entry cpsui
mode 1
open
choose "Paper size" "A4 (210 × 297 mm)"
page "Finishing"
choose "Offset stacking" "No offset"
choose "Binding" "Perfect binding"
page "Special Pages"
choose "Covers" "Front and back"
expect "Cover tray" enabled
choose "Cover tray" "Tray 4"
page "Job Options"
choose "Job priority" "High"
expect no conflict
press "OK"
expect closed
expect document paper is A4
reopen
page "Finishing"
expect "Binding" is "Perfect binding"
expect "Offset stacking" is "No offset"
page "Special Pages"
expect "Covers" is "Front and back"
expect "Cover tray" is "Tray 4"
page "Job Options"
expect "Job priority" is "High"
press "Cancel"
