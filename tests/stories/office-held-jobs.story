# Secure, delayed and saved jobs: each opens the fields that it needs, and nothing else.
product office-c430
entry model
open
expect odrv-pin disabled
expect odrv-delay-hour disabled
expect odrv-saved-name disabled
set odrv-job-type secure
expect odrv-pin enabled
expect odrv-delay-hour disabled
expect odrv-banner-sheet empty
set odrv-job-type delayed
expect odrv-pin disabled
expect odrv-delay-hour enabled
set odrv-delay-hour 23
set odrv-job-type saved
expect odrv-saved-name enabled
set odrv-saved-name "Minutes of ""the"" meeting"
expect odrv-delete-after-printing enabled
press OK
reopen
expect odrv-job-type is saved
expect odrv-saved-name is "Minutes of ""the"" meeting"
expect odrv-delay-hour is 23

# Without a disk there is nowhere to hold a job.
restart mode 2
open
set odrv-installed-hard-disk false
press OK
restart mode 4
open
expect odrv-job-type entry secure disabled reason contains "disk"
expect odrv-job-type entry normal enabled
