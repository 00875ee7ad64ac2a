#include "pictures/notes/HeifBlocks.h"

#include <libheif/heif.h>

#include <memory>
#include <vector>

#include "pictures/formats/ByteView.h"

namespace neb {
namespace {

// No block of a camera is as long.
constexpr size_t LongestBlock = 16 << 20;

struct Freed {
    void operator()(heif_context* File) const { heif_context_free(File); }
    void operator()(heif_image_handle* Picture) const { heif_image_handle_release(Picture); }
};
using HeifFile = std::unique_ptr<heif_context, Freed>;
using HeifPicture = std::unique_ptr<heif_image_handle, Freed>;

HeifPicture FirstPicture(heif_context* File) {
    heif_image_handle* Picture = nullptr;
    const heif_error Problem = heif_context_get_primary_image_handle(File, &Picture);
    return HeifPicture(Problem.code == heif_error_Ok ? Picture : nullptr);
}

QByteArray BlockOf(const heif_image_handle* Picture, heif_item_id Number) {
    const size_t Length = heif_image_handle_get_metadata_size(Picture, Number);
    if (Length > LongestBlock) return {};
    QByteArray Block(static_cast<qsizetype>(Length), '\0');
    const heif_error Problem = heif_image_handle_get_metadata(Picture, Number, Block.data());
    return Problem.code == heif_error_Ok ? Block : QByteArray();
}

// A number in front says how far behind it the structure begins.
QByteArray Structure(const QByteArray& Block) {
    const ByteView View(Block);
    return View.Part(4 + qint64(View.U32(0, true)), Block.size()).toByteArray();
}

HeifFile Opened(const QByteArray& Bytes) {
    HeifFile File(heif_context_alloc());
    const heif_error Problem = heif_context_read_from_memory_without_copy(
        File.get(), Bytes.constData(), static_cast<size_t>(Bytes.size()), nullptr);
    return Problem.code == heif_error_Ok ? std::move(File) : nullptr;
}

std::vector<heif_item_id> BlocksBeside(const heif_image_handle* Picture) {
    const int Count = heif_image_handle_get_number_of_metadata_blocks(Picture, nullptr);
    std::vector<heif_item_id> Numbers(static_cast<size_t>(std::max(Count, 0)));
    heif_image_handle_get_list_of_metadata_block_IDs(Picture, nullptr, Numbers.data(), Count);
    return Numbers;
}

}  // namespace

bool IsHeif(const QByteArray& File) {
    return ByteView(File).Is(4, "ftyp");
}

HeifBlocks BlocksOfHeif(const QByteArray& Bytes) {
    const HeifFile File = Opened(Bytes);
    const HeifPicture Picture = File ? FirstPicture(File.get()) : nullptr;
    if (!Picture) return {};
    HeifBlocks Found;
    for (const heif_item_id Number : BlocksBeside(Picture.get())) {
        const QByteArray Kind(heif_image_handle_get_metadata_type(Picture.get(), Number));
        if (Kind == "Exif") Found.Exif = Structure(BlockOf(Picture.get(), Number));
        const QByteArray Type(heif_image_handle_get_metadata_content_type(Picture.get(), Number));
        if (Type == "application/rdf+xml") Found.Xmp = BlockOf(Picture.get(), Number);
    }
    return Found;
}

}  // namespace neb
