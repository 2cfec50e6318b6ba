# Without a duplex unit nobody can print on both sides, and the sheet says why.
product mono-m210
entry cpsui
mode 2
open
untick "Duplex unit"
press "OK"
expect closed

restart mode 1
open
expect "Sides" is "One-sided"
expect "Sides" disabled reason contains "duplex unit"
expect "Two-sided by hand" enabled
expect no conflict
press "Cancel"
