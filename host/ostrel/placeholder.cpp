// Replaced by the data store.
