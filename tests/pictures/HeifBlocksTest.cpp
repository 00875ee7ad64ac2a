// What HEIC files say of their pictures. They are written here by the library's other half.
#include "pictures/notes/HeifBlocks.h"

#include <libheif/heif.h>

#include "pictures/NotedPictures.h"
#include "pictures/formats/TiffTags.h"
#include "pictures/notes/PictureNotes.h"

using namespace neb;
using namespace neb::tests;

namespace {

heif_error Append(heif_context*, const void* Data, size_t Length, void* Into) {
    static_cast<QByteArray*>(Into)->append(static_cast<const char*>(Data),
                                           static_cast<qsizetype>(Length));
    return {heif_error_Ok, heif_suberror_Unspecified, ""};
}

// A plain picture with a block and a packet; empty where there is nothing that writes such files.
QByteArray NotedHeic(const QByteArray& Block, const QByteArray& Packet) {
    heif_context* const File = heif_context_alloc();
    heif_encoder* Encoder = nullptr;
    heif_image* Image = nullptr;
    heif_image_handle* Picture = nullptr;
    QByteArray Bytes;
    heif_image_create(64, 64, heif_colorspace_RGB, heif_chroma_interleaved_RGB, &Image);
    heif_image_add_plane(Image, heif_channel_interleaved, 64, 64, 8);
    if (heif_context_get_encoder_for_format(File, heif_compression_HEVC, &Encoder).code == 0) {
        heif_context_encode_image(File, Image, Encoder, nullptr, &Picture);
        heif_context_add_exif_metadata(File, Picture, Block.constData(), int(Block.size()));
        heif_context_add_XMP_metadata(File, Picture, Packet.constData(), int(Packet.size()));
        heif_writer Writer = {1, Append};
        heif_context_write(File, &Writer, &Bytes);
        heif_encoder_release(Encoder);
        heif_image_handle_release(Picture);
    }
    heif_image_release(Image);
    heif_context_free(File);
    return Bytes;
}

}  // namespace

TEST(HeifBlocks, AreFoundAndGoAlongIntoAJpeg) {
    const QByteArray Block = CameraBlock(6, {64, 64}), Packet = XmpPacket(6);
    const QByteArray Heic = NotedHeic(Block, Packet);
    if (Heic.isEmpty()) GTEST_SKIP() << "nothing here writes HEIC files";
    ASSERT_TRUE(IsHeif(Heic));
    EXPECT_EQ(Block, BlocksOfHeif(Heic).Exif);
    EXPECT_EQ(Packet, BlocksOfHeif(Heic).Xmp);
    for (const bool KeepsPlace : {true, false}) {
        const QByteArray Jpeg = WithMore(JpegOf(Motif()), NotesFor({48, 32}, Heic, KeepsPlace));
        const QByteArray Kept = ExifIn(Jpeg);
        const TiffTags Tags(Kept);
        EXPECT_TRUE(Tags.Bytes(0x010E).startsWith("Grandmother by the tree"));
        EXPECT_TRUE(Tags.BytesBehind(0x8769, 0x9003).startsWith("2003:12:24 18:30:00"));
        EXPECT_EQ(1, Tags.Orientation());
        EXPECT_EQ(KeepsPlace, Tags.Value(0x8825).has_value());
        EXPECT_TRUE(Jpeg.contains("Words in a packet"));
        EXPECT_EQ(KeepsPlace, Jpeg.contains("GPSLatitude"));
    }
}

TEST(HeifBlocks, OfADamagedFileAreNone) {
    const QByteArray Heic = NotedHeic(CameraBlock(1, {64, 64}), XmpPacket(1));
    for (qsizetype Length = 0; Length < Heic.size(); Length += 13)
        EXPECT_LT(NotesFor({48, 32}, Heic.left(Length), true).size(), 10000);
    EXPECT_TRUE(BlocksOfHeif("\0\0\0\x18"
                             "ftypheic")
                    .Exif.isEmpty());
    EXPECT_FALSE(IsHeif(JpegOf(Motif())));
}
