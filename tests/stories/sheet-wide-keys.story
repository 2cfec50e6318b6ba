# By the keyboard: a list that opens with Alt+Down, a box that Space ticks, Enter for OK.
product wide-w360
entry sheet
mode 1
open
key Alt+Down in "Cutting"
key End
key Enter
expect "Cutting" is "After the job"
key Space in "Collate copies"
expect "Collate copies" is "unchecked"
page "Layout"
expect "Orientation" is "Landscape"
choose "Orientation" "Portrait"
key Enter
expect closed
reopen
expect "Cutting" is "After the job"
expect "Collate copies" is "unchecked"
page "Layout"
expect "Orientation" is "Portrait"
key Escape
expect closed
