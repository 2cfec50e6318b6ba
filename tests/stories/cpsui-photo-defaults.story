# The administrator's defaults are what a new document begins with.
product photo-x150
entry cpsui
mode 4
open
choose "Paper type" "Plain"
choose "Pictures per sheet" "4 pictures"
type "Copies" "2"
press "OK"
expect closed

restart mode 1
expect document copies is 2
open
expect "Paper type" is "Plain"
expect "Pictures per sheet" is "4 pictures"
expect "Copies" is "2"
choose "Pictures per sheet" "8 pictures"
press "OK"
reopen
expect "Pictures per sheet" is "8 pictures"
press "Cancel"

# A person's document is nobody's default.
restart mode 1
open
expect "Pictures per sheet" is "4 pictures"
press "Cancel"
