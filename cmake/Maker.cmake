# Who publishes the program. A build for users sets these; the values here are placeholders under a domain that is
# reserved for examples (RFC 2606).
set(QUILLON_WEB_SITE "https://quillon.example.com" CACHE STRING "The maker's web site: scheme and host")
