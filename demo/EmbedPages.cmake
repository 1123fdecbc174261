# Writes OUTPUT, a C++ source with the bytes of FILES (relative to FOLDER) as a table of pages.

set(arrays "")
set(rows "")
set(index 0)
foreach(file IN LISTS FILES)
    file(READ ${FOLDER}/${file} bytes HEX)
    string(REGEX REPLACE "(..)" "'\\\\x\\1'," bytes "${bytes}")
    string(APPEND arrays "constexpr char page${index}[] = {${bytes}'\\0'};\n")
    string(APPEND rows "    {\"${file}\", {page${index}, sizeof page${index} - 1}},\n")
    math(EXPR index "${index} + 1")
endforeach()

file(WRITE ${OUTPUT}.new "#include \"service/Pages.h\"

namespace demo {
namespace {

${arrays}
constexpr EmbeddedPage pages[] = {
${rows}};

} // namespace

std::span<const EmbeddedPage> embeddedPages() { return pages; }

} // namespace demo
")
file(RENAME ${OUTPUT}.new ${OUTPUT})
