# Filled below.
