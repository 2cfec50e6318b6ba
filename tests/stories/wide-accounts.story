# Where the administrator asks for an account, a job without one is a conflict.
product wide-w360
entry model
mode 2
open
set odrv-account-required true
press OK
restart mode 1
open
expect odrv-accounting conflict
set odrv-accounting true
expect odrv-accounting no conflict
