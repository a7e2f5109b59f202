// Holds the precompiled header that the window targets reuse.
