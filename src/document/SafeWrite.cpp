#include "document/SafeWrite.h"

#include "document/platform/Files.h"

namespace flickerscribe {
namespace {

std::optional<platform::WriteFault> gFault;

}  // namespace

std::optional<SaveError> WriteFileSafely(const std::string& path, std::string_view bytes, FileKinds kinds) {
    auto fault = gFault;
    gFault.reset();
    return platform::ReplaceFileContent(path, bytes, kinds, fault);
}

SaveError SystemError(int number) {
    return SaveError{number, platform::ErrorText(number)};
}

namespace write_seam {

void FailNextWriteAfter(std::size_t bytes, int error) {
    gFault = platform::WriteFault{bytes, error};
}
void Reset() {
    gFault.reset();
}

}  // namespace write_seam

}  // namespace flickerscribe
