# The Debian packages that the program, its tests and its checks need. Sourced, not run.

program_packages="cmake ninja-build g++ qt6-base-dev qt6-svg-dev libicu-dev nlohmann-json3-dev \
  libcli11-dev libpugixml-dev"
# What an open window also needs: Wayland support, and typefaces: those of everyday texts, including
# Greek, Cyrillic, Hebrew and Arabic; Chinese, Japanese and Korean; and symbols.
window_packages="qt6-wayland fonts-dejavu-core fonts-liberation fonts-wqy-microhei fonts-symbola"
test_packages="libgtest-dev fonts-dejavu-core"
check_packages="clang libclang-rt-14-dev clang-tidy clang-format libbenchmark-dev \
  desktop-file-utils appstream mandoc shared-mime-info file dpkg-dev \
  r-base-core libuima-core-java default-jdk-headless"
