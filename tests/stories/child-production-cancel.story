# Cancel of a sheet that belongs to somebody else keeps nothing of ours; Apply before it does.
product production-p900
entry child
mode 1
open
page "Sheets"
choose "Colour" "Black and white"
press "Apply"
page "Image"
choose "Quality" "High"
press "Cancel"
expect closed
reopen
page "Sheets"
expect "Colour" is "Black and white"
page "Image"
expect "Quality" is "Standard"
press "Cancel"
