# What a program has chosen is shown, and what is chosen here is told to the program.
product office-c430
entry cpsui
mode 1
document paper A3
document orientation landscape
document copies 3
document colour mono
document duplex long
open
expect "Paper size" is "A3 (297 × 420 mm)"
expect "Copies" is "3"
expect "Colour" is "Black and white"
expect "Sides" is "Two-sided, long edge"
page "Layout"
expect "Orientation" is "Landscape"
page "Paper/Output"
choose "Paper size" "A5 (148 × 210 mm)"
choose "Sides" "Two-sided, short edge"
untick "Collate copies"
press "OK"
expect document paper is A5
expect document duplex is short
expect document collate is off
expect document copies is 3
expect document orientation is landscape
expect document colour is mono
