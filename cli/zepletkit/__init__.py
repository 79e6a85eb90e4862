"""The command line tool for plugin authors: one module per command, and what they share."""
