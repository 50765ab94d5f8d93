# The description for software centres. They fetch pictures from the web, so the publisher of the program
# sets their address.
set(NUMORRA_PICTURES_URL "" CACHE STRING "public address of docs/pictures, for software centres")

set(NUMORRA_HOMEPAGE_URL "" CACHE STRING "public address of the program's home page, for software centres")

# Writes the metainfo to a file, with pictures and a home page if they have an address.
function(numorra_metainfo pictures_url homepage_url file)
  set(NUMORRA_HOMEPAGE "")
  if(homepage_url)
    set(NUMORRA_HOMEPAGE "  <url type=\"homepage\">${homepage_url}</url>\n")
  endif()
  set(NUMORRA_SCREENSHOTS "")
  if(pictures_url)
    set(type " type=\"default\"")
    foreach(picture
        "normal-11|A square of the numbers 1 to 121"
        "manual-5|Solving a square by hand"
        "shaded-10|A square shaded by its values"
        "vectors-10|The path from the smallest number to the largest")
      string(REPLACE "|" ";" picture ${picture})
      list(POP_FRONT picture name caption)
      string(APPEND NUMORRA_SCREENSHOTS
        "    <screenshot${type}><caption>${caption}</caption>"
        "<image>${pictures_url}/${name}.png</image></screenshot>\n")
      set(type "")
    endforeach()
    set(NUMORRA_SCREENSHOTS "  <screenshots>\n${NUMORRA_SCREENSHOTS}  </screenshots>\n")
  endif()
  configure_file(${CMAKE_CURRENT_FUNCTION_LIST_DIR}/org.numorra.numorra.metainfo.xml.in ${file} @ONLY)
endfunction()
