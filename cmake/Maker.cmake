# Who publishes the program. A build for users sets these; the values here are placeholders under a domain that is
# reserved for examples (RFC 2606).
set(QUILLON_WEB_SITE "https://quillon.example.com" CACHE STRING "The maker's web site: scheme and host")
set(QUILLON_SUPPORT_ADDRESS "support@example.com" CACHE STRING "Where users write to: a mail address")
set(QUILLON_ICON_COLLECTION "https://icons.example.com/" CACHE STRING
  "Page of the collection that the application's icon comes from")

# The maker's configuration service. While one of these is empty the program asks it nothing.
set(QUILLON_SERVICE_ADDRESS "" CACHE STRING "Base address of the configuration service, without a slash at its end")
set(QUILLON_SERVICE_APPLICATION_ID "" CACHE STRING "What the configuration service knows this program by")
set(QUILLON_SERVICE_API_KEY "" CACHE STRING "The program's key to the configuration service")
