# What a program says in the public fields arrives, what a person chooses goes back.
product office-c430
entry model
expect document paper is A4
expect document duplex is none
document paper A5
document duplex long
document copies 3
open
expect odrv-paper-size is a5
expect odrv-sides is two-sided-long-edge
expect odrv-copies is 3
set odrv-orientation landscape
set odrv-staple one-top-left
set odrv-colour-mode black-and-white
expect document orientation is portrait
press OK
expect document orientation is landscape
expect document colour is mono
expect document copies is 3
expect document length is "not set"

# The program changes one thing afterwards; what only the driver knows stays.
document copies 4
reopen
expect odrv-copies is 4
expect odrv-staple is one-top-left
