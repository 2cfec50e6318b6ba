# Pages with settings of their own are kept one by one.
product office-c430
entry model
open
set odrv-special-pages 2
expect odrv-special-pages is 2
press OK
reopen
expect odrv-special-pages is 2
set odrv-special-pages 1
press Apply
set odrv-special-pages 3
press Cancel
expect closed
reopen
expect odrv-special-pages is 1
