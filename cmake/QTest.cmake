# The toolkit's test library without the two definitions that name a target's own folders, so that all targets can share
# one precompiled header.
include_guard(GLOBAL)
find_package(Qt6 6.4 REQUIRED COMPONENTS Test)
add_library(zelvor_qtest INTERFACE)
target_link_libraries(zelvor_qtest INTERFACE $<LINK_ONLY:Qt6::Test>)
target_include_directories(zelvor_qtest SYSTEM INTERFACE $<TARGET_PROPERTY:Qt6::Test,INTERFACE_INCLUDE_DIRECTORIES>)
target_compile_definitions(zelvor_qtest INTERFACE QT_TESTLIB_LIB)
