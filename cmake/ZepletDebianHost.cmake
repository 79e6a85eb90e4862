# Read by cpack before it packs: dpkg-shlibdeps looks for the libraries of this architecture, which
# need not be the machine's own.
set(ENV{DEB_HOST_ARCH} ${CPACK_DEBIAN_PACKAGE_ARCHITECTURE})
