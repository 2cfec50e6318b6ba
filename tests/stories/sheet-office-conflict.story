# Two choices that clash are marked wherever they stand, and F8 leads to them and offers ways out.
product office-c430
entry sheet
mode 1
open
choose "Sides" "Two-sided, long edge"
expect "Sides" no conflict
expect tab "Paper/Output" unmarked
choose "Paper type" "Labels"
expect "Sides" conflict
expect count conflicts 1
expect tab "Paper/Output" marked
expect status contains "In conflict"
page "Layout"
key F8
expect message contains "Labels"
answer "Close"
key Home
expect "Sides" is "One-sided"
expect no conflict
expect tab "Paper/Output" unmarked
press "OK"
expect closed
reopen
expect "Paper type" is "Labels"
expect "Sides" is "One-sided"
press "Cancel"
