# What Apply took stays when Cancel follows; what came after it does not.
product office-c430
entry cpsui
mode 1
open
page "Layout"
choose "Staple" "1 staple, top left"
choose "Punch" "2 holes"
press "Apply"
expect open
choose "Punch" "4 holes"
page "Image"
tick "Save toner"
press "Cancel"
expect closed
reopen
page "Layout"
expect "Staple" is "1 staple, top left"
expect "Punch" is "2 holes"
page "Image"
expect "Save toner" is "unchecked"
press "Cancel"
