# The administrator puts in a booklet finisher; people then find what it can do.
product office-c430
entry cpsui
mode 1
open
page "Layout"
expect entry "Staple" "Saddle stitch" disabled reason contains "finisher"
press "Cancel"

restart mode 2
open
choose "Finisher" "Booklet finisher"
press "OK"
expect closed
reopen
expect "Finisher" is "Booklet finisher"
press "Cancel"

restart mode 1
open
page "Layout"
expect entry "Staple" "Saddle stitch" disabled reason contains "Booklet"
tick "Booklet"
expect entry "Staple" "Saddle stitch" enabled
choose "Staple" "Saddle stitch"
expect no conflict
press "OK"
reopen
page "Layout"
expect "Booklet" is "checked"
expect "Staple" is "Saddle stitch"
press "Cancel"
