#!/bin/sh
# Draws shadow.png, the soft shadow of the open notch; run it in this folder, the result is committed.
convert -size 160x160 xc:none -fill 'rgba(0,0,0,0.55)' -draw 'roundrectangle 40,40 119,119 30,30' \
    -channel RGBA -blur 0x12 -strip PNG32:shadow.png
