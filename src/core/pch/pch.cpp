// Carries the precompiled Qt headers that every library with windows reuses.
