# The compact dialog keeps with OK and forgets with Cancel, private settings too.
product office-c430
entry dialog
mode 3
open
choose "Staple" "2 staples, left"
choose "Orientation" "Landscape"
type "Copies" "4"
press "OK"
expect closed
reopen
expect "Staple" is "2 staples, left"
expect "Orientation" is "Landscape"
expect "Copies" is "4"
choose "Staple" "No staples"
type "Copies" "9"
press "Cancel"
expect closed
reopen
expect "Staple" is "2 staples, left"
expect "Copies" is "4"
expect entry "Staple" "Saddle stitch" disabled reason contains "finisher"
press "Cancel"
