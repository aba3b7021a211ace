// Placeholder until the instrument model lands.
