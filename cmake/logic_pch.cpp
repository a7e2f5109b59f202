// Holds the precompiled header that the logic targets reuse.
