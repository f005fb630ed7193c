# Every target of ours links this: language level, warnings and Qt's strictness macros.
add_library(tagsmith_options INTERFACE)
target_compile_features(tagsmith_options INTERFACE cxx_std_20)
target_compile_options(tagsmith_options INTERFACE
    -Wall -Wextra -Wpedantic -Wold-style-cast -Woverloaded-virtual -Wnon-virtual-dtor)
target_compile_definitions(tagsmith_options INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CONTEXTLESS_CONNECT
    QT_USE_QSTRINGBUILDER
    QT_NO_KEYWORDS)
target_include_directories(tagsmith_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
