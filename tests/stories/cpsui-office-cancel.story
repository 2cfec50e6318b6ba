# Cancel keeps nothing, neither for the program nor for the next opening.
product office-c430
entry cpsui
mode 1
open
type "Copies" "7"
choose "Sides" "Two-sided, long edge"
page "Layout"
choose "Orientation" "Landscape"
tick "Booklet"
press "Cancel"
expect closed
expect document copies is 1
expect document duplex is none
expect document orientation is portrait
reopen
expect "Copies" is "1"
expect "Sides" is "One-sided"
page "Layout"
expect "Orientation" is "Portrait"
expect "Booklet" is "unchecked"
press "Cancel"
