# Settings that no program knows of are kept by OK alone, without Apply.
product office-c430
entry cpsui
mode 1
open
page "Layout"
choose "Staple" "2 staples, left"
choose "Output bin" "Finisher tray"
page "Image"
tick "Save toner"
press "OK"
expect closed
reopen
page "Layout"
expect "Staple" is "2 staples, left"
expect "Output bin" is "Finisher tray"
page "Image"
expect "Save toner" is "checked"
press "Cancel"
