# Apply in a real program, then Cancel.
product office-c430
entry in-app
mode 1
open
page "Image"
tick "Save toner"
press "Apply"
expect open
choose "Quality" "High"
press "Cancel"
expect closed
reopen
page "Image"
expect "Save toner" is "checked"
expect "Quality" is "Standard"
press "Cancel"
