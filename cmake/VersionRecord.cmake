# What the program says about itself, in one place: the numbers are the project's version, the texts and the
# address of the maker's web site are settings of the build. All of it ends up in core/VersionRecord.h.
set(TALIVANE_TITLE "Talivane" CACHE STRING "The application's title; part of the settings' paths, too")
set(TALIVANE_TRADEMARKS "Talivane is the name under which Orvenel makes this program."
    CACHE STRING "The legal trademarks line of the about box")
set(TALIVANE_RIGHTS "Copyright Orvenel. All rights reserved."
    CACHE STRING "The legal rights line of the about box")
set(TALIVANE_COMMENTS
    "Feng shui is a tradition, not a science. This program passes its rules on for your own reflection; it does not \
take the place of professional advice on health, building or money."
    CACHE STRING "The comments at the foot of the about box")
set(TALIVANE_DESKTOP_ID "com.orvenel.Talivane" CACHE STRING "The application id; packaging/ has files of this name")
set(TALIVANE_SITE "https://www.talivane.example/" CACHE STRING "The maker's web site, which the help links open")

# talivane_version_record(TARGET): gives the target, and all that link it, the header core/VersionRecord.h.
function(talivane_version_record target)
  string(REGEX REPLACE "/+$" "" TALIVANE_SITE_ADDRESS "${TALIVANE_SITE}")
  string(APPEND TALIVANE_SITE_ADDRESS "/")
  configure_file("${PROJECT_SOURCE_DIR}/src/core/VersionRecord.h.in"
                 "${PROJECT_BINARY_DIR}/generated/core/VersionRecord.h" @ONLY)
  target_include_directories(${target} PUBLIC "${PROJECT_BINARY_DIR}/generated")
endfunction()
