product office-c430
entry cpsui # as installed
mode 1
language de
document duplex long
open
page "Layout"
choose "Group/Staple" "2 ""staples"", left"
tick "Booklet"
untick "Booklet"
type "Copies" "12"
key Ctrl+Shift+Tab
key Alt+Down in "Paper type"
expect entry "Staple" "x" disabled reason contains "finisher"
expect "Staple" is "y"
expect "A" empty
expect "A" conflict
expect "A" no conflict
expect no conflict
expect count conflicts 2
expect status contains "x"
press "OK"
expect message contains "x"
answer "Yes"
expect no message
expect tab "Layout" marked
expect closed
expect document paper is A4
reopen
restart product mono-m210 mode 4
open
expect open
