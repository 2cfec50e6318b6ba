# Printing defaults are where new documents begin; a document goes its own way from there.
product office-c430
entry model
mode 4
open
set odrv-sides two-sided-long-edge
set odrv-toner-saving true
press OK

restart mode 1
expect document duplex is long
open
expect odrv-sides is two-sided-long-edge
expect odrv-toner-saving is true
set odrv-toner-saving false
press OK
expect closed

restart mode 4
open
expect odrv-toner-saving is true
set odrv-sides one-sided
press Cancel

restart mode 1
open
expect odrv-sides is two-sided-long-edge
expect odrv-toner-saving is false
