#!/bin/sh
# Starts the editor out of the folder given.
set -eu
bin=$1
if [ ! -x "$bin/velara-studio" ]; then
    echo "The editor is not there yet; $bin/velara-batch runs the same engine: try $bin/velara-batch --help"
    exit 0
fi
exec "$bin/velara-studio"
