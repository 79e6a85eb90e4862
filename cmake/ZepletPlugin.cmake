# zeplet_add_plugin(NAME name SOURCES ...): see the function in this file.
