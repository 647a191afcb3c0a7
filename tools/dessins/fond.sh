#!/bin/sh
# Makes resources/fond.jpg, the picture behind the client area, from its source resources/fond.svg.
# A little fixed noise keeps the slow gradients of the sky from showing steps.
set -eu
cd "$(dirname "$0")/../../resources"
rsvg-convert -w 1280 -h 942 fond.svg |
    convert png:- -alpha off -seed 7 -attenuate 0.12 +noise Gaussian \
        -strip -sampling-factor 4:2:0 -quality 88 fond.jpg
