// Carries the precompiled standard.h.
