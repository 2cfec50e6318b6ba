# In a real program, through the installed driver: private settings are kept by OK alone, and Cancel
# keeps nothing.
product office-c430
entry in-app
mode 1
open
page "Paper/Output" # a real sheet opens where it was left
expect "Sides" is "One-sided"
choose "Sides" "Two-sided, long edge"
page "Layout"
choose "Staple" "2 staples, left"
press "OK"
expect closed
reopen
page "Paper/Output" # a real sheet opens where it was left
expect "Sides" is "Two-sided, long edge"
page "Layout"
expect "Staple" is "2 staples, left"
choose "Staple" "No staples"
tick "Booklet"
press "OK"
reopen
page "Layout"
expect "Staple" is "No staples"
expect "Booklet" is "checked"
untick "Booklet"
choose "Staple" "1 staple, top left"
press "Cancel"
expect closed
reopen
page "Layout"
expect "Staple" is "No staples"
expect "Booklet" is "checked"
press "Cancel"
