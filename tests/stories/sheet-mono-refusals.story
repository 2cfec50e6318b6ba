# A number that cannot be is refused with a message, and the sheet stays open.
product mono-m210
entry sheet
mode 1
open
type "Copies" "0"
press "OK"
expect message contains "out of range"
answer "OK"
expect open
expect no message
type "Copies" "12"
press "OK"
expect closed
reopen
expect "Copies" is "12"
press "Cancel"
