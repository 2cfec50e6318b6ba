# Numbers that are typed, in a sheet that belongs to somebody else.
product photo-x150
entry child
mode 1
open
page "Pictures"
type "Copies" "25"
page "Layout"
expect "Percentage" disabled reason contains "scaling"
choose "Scaling" "By percentage"
expect "Percentage" enabled
type "Percentage" "150"
key Tab
expect "Percentage" is "150"
type "Drying time" "3"
press "OK"
expect closed
reopen
page "Pictures"
expect "Copies" is "25"
page "Layout"
expect "Percentage" is "150"
expect "Drying time" is "3"
press "Cancel"
