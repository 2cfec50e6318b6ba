product mono-m210
entry model
open
set odrv-copies 2
set odrv-special-pages[1]/odrv-sides "one-sided"
expect odrv-staple entry two-left hidden
expect odrv-staple disabled reason contains "x"
press Apply
