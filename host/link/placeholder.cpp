// Replaced by the link.
