# Strong sharpening brings the noise back that was taken out: either gives way.
product photo-x150
entry model
open
set odrv-noise-reduction true
set odrv-sharpening 51
expect odrv-sharpening conflict
set odrv-sharpening 50
expect no conflict
set odrv-sharpening 60
expect count conflicts 1
set odrv-noise-reduction false
expect no conflict
expect odrv-sharpening is 60
