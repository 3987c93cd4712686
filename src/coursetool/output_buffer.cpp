#include "coursetool/output_buffer.h"

#include "coursetool/terminal.h"
#include "files/cause.h"
#include "text/utf8.h"

namespace coursetool {

OutputBuffer::OutputBuffer(std::FILE* stream) : stream_(stream), toTerminal_(isTerminal(stream)) {
    text_.reserve(2 * kPiece);
}

bool OutputBuffer::flush() {
    if (toTerminal_)
        text_ = text::plainLines(text_);
    if (!error_ && (std::fwrite(text_.data(), 1, text_.size(), stream_) != text_.size() ||
                    std::fflush(stream_) != 0))
        error_ = files::lastError();
    text_.clear();
    return !error_;
}

} // namespace coursetool
