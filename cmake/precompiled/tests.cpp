// Carries the precompiled tests.h.
