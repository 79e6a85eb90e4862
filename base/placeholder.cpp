// Replaced by the log line writer.
