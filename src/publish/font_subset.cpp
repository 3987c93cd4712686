#include "publish/font_subset.h"

#include <harfbuzz/hb-ot.h>
#include <harfbuzz/hb-subset.h>
#include <woff2/encode.h>

#include <memory>

#ifndef _WIN32
#include <fcntl.h>
#include <unistd.h>
#endif

namespace publish {

namespace {

template <auto Destroy>
struct With {
    template <class Object>
    void operator()(Object* object) const {
        Destroy(object);
    }
};
using Blob = std::unique_ptr<hb_blob_t, With<hb_blob_destroy>>;
using Face = std::unique_ptr<hb_face_t, With<hb_face_destroy>>;
using Input = std::unique_ptr<hb_subset_input_t, With<hb_subset_input_destroy>>;

Face faceOf(const QByteArray& fontFile) {
    const Blob blob(hb_blob_create(fontFile.constData(), static_cast<unsigned>(fontFile.size()),
                                   HB_MEMORY_MODE_READONLY, nullptr, nullptr));
    return Face(hb_face_create(blob.get(), 0));
}

QByteArray bytesOf(hb_blob_t* blob) {
    unsigned length = 0;
    const char* data = hb_blob_get_data(blob, &length);
    return {data, static_cast<qsizetype>(length)};
}

/// The library that packs fonts tells sizes on standard error, which belongs to the person.
class QuietErrors {
#ifndef _WIN32
public:
    QuietErrors() : kept_(dup(STDERR_FILENO)) {
        const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
        if (kept_ >= 0 && nowhere >= 0)
            dup2(nowhere, STDERR_FILENO);
        if (nowhere >= 0)
            close(nowhere);
    }
    ~QuietErrors() {
        if (kept_ >= 0) {
            dup2(kept_, STDERR_FILENO);
            close(kept_);
        }
    }
    QuietErrors(const QuietErrors&) = delete;
    QuietErrors& operator=(const QuietErrors&) = delete;

private:
    int kept_;
#endif
};

QByteArray woff2Of(const QByteArray& font) {
    const auto* data = reinterpret_cast<const std::uint8_t*>(font.constData());
    const auto size = static_cast<std::size_t>(font.size());
    std::size_t length = woff2::MaxWOFF2CompressedSize(data, size);
    QByteArray packed(static_cast<qsizetype>(length), '\0');
    const QuietErrors quiet;
    if (!woff2::ConvertTTFToWOFF2(data, size, reinterpret_cast<std::uint8_t*>(packed.data()),
                                  &length))
        return {};
    packed.truncate(static_cast<qsizetype>(length));
    return packed;
}

/// Whether at least one of the characters is more than a blank in the face.
bool hasAny(hb_face_t* face, const std::set<char32_t>& characters) {
    const std::unique_ptr<hb_set_t, With<hb_set_destroy>> all(hb_set_create());
    hb_face_collect_unicodes(face, all.get());
    for (const char32_t character : characters)
        if (hb_set_has(all.get(), character))
            return true;
    return false;
}

} // namespace

QByteArray fontSubset(const QByteArray& fontFile, const std::set<char32_t>& characters) {
    const Face face = faceOf(fontFile);
    if (hb_face_get_glyph_count(face.get()) == 0 || !hasAny(face.get(), characters))
        return {};
    const Input input(hb_subset_input_create_or_fail());
    if (!input)
        return {};
    hb_set_t* wanted = hb_subset_input_unicode_set(input.get());
    for (const char32_t character : characters)
        hb_set_add(wanted, character);
    hb_set_t* names = hb_subset_input_set(input.get(), HB_SUBSET_SETS_NAME_ID);
    hb_set_clear(names);
    hb_set_add(names, HB_OT_NAME_ID_COPYRIGHT);
    hb_set_add(names, HB_OT_NAME_ID_LICENSE);
    hb_set_add(names, HB_OT_NAME_ID_LICENSE_URL);
    hb_set_clear(hb_subset_input_set(input.get(), HB_SUBSET_SETS_LAYOUT_FEATURE_TAG));
    hb_subset_input_set_flags(input.get(), HB_SUBSET_FLAGS_NO_HINTING);
    const Face subset(hb_subset_or_fail(face.get(), input.get()));
    if (!subset)
        return {};
    const Blob blob(hb_face_reference_blob(subset.get()));
    return woff2Of(bytesOf(blob.get()));
}

FaceStyle faceStyle(const QByteArray& fontFile) {
    // https://learn.microsoft.com/typography/opentype/spec/head: bits 0 and 1 of macStyle.
    constexpr qsizetype kStyleAt = 45;
    const Face face = faceOf(fontFile);
    const Blob blob(hb_face_reference_table(face.get(), HB_TAG('h', 'e', 'a', 'd')));
    const QByteArray head = bytesOf(blob.get());
    const int style = head.size() > kStyleAt ? head[kStyleAt] : 0;
    return {(style & 1) != 0, (style & 2) != 0};
}

} // namespace publish
