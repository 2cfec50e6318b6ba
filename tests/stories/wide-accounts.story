# Where the administrator asks for an account, jobs have one unless somebody says no.
product wide-w360
entry model
mode 2
open
set odrv-account-required true
press OK
restart mode 1
open
expect odrv-accounting is true
expect no conflict
set odrv-accounting false
expect odrv-accounting conflict
set odrv-accounting true
expect odrv-accounting no conflict
