// Replaced by the bus.
