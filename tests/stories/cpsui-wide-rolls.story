# A third roll can be chosen once the unit for it is there. The device is kept with the printer and
# not with a document.
product wide-w360
entry cpsui
mode 1
open
expect entry "Paper tray" "Roll 3" disabled reason contains "roll"
choose "Paper tray" "Roll 2"
press "OK"

restart mode 2
open
choose "Rolls" "Four rolls"
press "Apply"
expect open
press "Cancel"
expect closed

restart mode 1
open
expect "Paper tray" is "Automatic"
choose "Paper tray" "Roll 3"
choose "Cutting" "Double cut"
press "OK"
reopen
expect "Paper tray" is "Roll 3"
expect "Cutting" is "Double cut"
press "Cancel"
