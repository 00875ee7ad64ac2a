#include "pictures/decoders/PictureColour.h"

#include <lcms2.h>

#include <QColorSpace>
#include <QtEndian>
#include <memory>

namespace neb {
namespace {

#if Q_BYTE_ORDER == Q_LITTLE_ENDIAN
constexpr cmsUInt32Number PixelType = TYPE_BGRA_8;
#else
constexpr cmsUInt32Number PixelType = TYPE_ARGB_8;
#endif

struct CloseProfile {
    void operator()(void* Handle) const { cmsCloseProfile(Handle); }
};
struct DeleteTransform {
    void operator()(void* Handle) const { cmsDeleteTransform(Handle); }
};
using ProfileHandle = std::unique_ptr<void, CloseProfile>;
using TransformHandle = std::unique_ptr<void, DeleteTransform>;

ProfileHandle OpenProfile(const QByteArray& Profile) {
    // Complaints about broken profiles are of no use to anyone: such a profile counts as none.
    cmsSetLogErrorHandler(nullptr);
    if (Profile.isEmpty()) return nullptr;
    return ProfileHandle(
        cmsOpenProfileFromMem(Profile.constData(), static_cast<cmsUInt32Number>(Profile.size())));
}

TransformHandle MakeTransform(const ProfileHandle& From, cmsUInt32Number FromType) {
    const ProfileHandle Screen(cmsCreate_sRGBProfile());
    return TransformHandle(cmsCreateTransform(From.get(), FromType, Screen.get(), PixelType,
                                              INTENT_PERCEPTUAL, cmsFLAGS_COPY_ALPHA));
}

// Most profiles are sRGB under one name or another: then there is nothing to do.
bool ChangesNothing(const TransformHandle& Transform) {
    std::vector<quint32> Before, After;
    for (int R = 0; R < 256; R += 51)
        for (int G = 0; G < 256; G += 51)
            for (int B = 0; B < 256; B += 51) Before.push_back(qRgb(R, G, B));
    After.resize(Before.size());
    cmsDoTransform(Transform.get(), Before.data(), After.data(),
                   static_cast<cmsUInt32Number>(Before.size()));
    for (size_t I = 0; I < Before.size(); ++I)
        for (int Shift : {0, 8, 16})
            if (std::abs(int(Before[I] >> Shift & 255) - int(After[I] >> Shift & 255)) > 1)
                return false;
    return true;
}

void ApplyInPlace(const TransformHandle& Transform, QImage& Picture) {
    for (int Y = 0; Y < Picture.height(); ++Y) {
        uchar* Line = Picture.scanLine(Y);
        cmsDoTransform(Transform.get(), Line, Line, static_cast<cmsUInt32Number>(Picture.width()));
    }
}

QImage GreyToScreen(const QImage& Grey, const ProfileHandle& Profile) {
    const auto Transform = MakeTransform(Profile, TYPE_GRAY_8);
    if (!Transform) return Grey.convertToFormat(QImage::Format_RGB32);
    QImage Result(Grey.size(), QImage::Format_RGB32);
    Result.fill(Qt::white);
    for (int Y = 0; Y < Grey.height(); ++Y)
        cmsDoTransform(Transform.get(), Grey.constScanLine(Y), Result.scanLine(Y),
                       static_cast<cmsUInt32Number>(Grey.width()));
    return Result;
}

void LayOnWhite(QImage& Picture) {
    for (int Y = 0; Y < Picture.height(); ++Y) {
        auto* Line = reinterpret_cast<QRgb*>(Picture.scanLine(Y));
        for (int X = 0; X < Picture.width(); ++X) {
            const int A = qAlpha(Line[X]);
            const auto Mix = [A](int C) { return (C * A + 255 * (255 - A) + 127) / 255; };
            if (A != 255)
                Line[X] = qRgb(Mix(qRed(Line[X])), Mix(qGreen(Line[X])), Mix(qBlue(Line[X])));
        }
    }
    Picture.reinterpretAsFormat(QImage::Format_RGB32);
}

void PlainInksToColours(QImage& Picture) {
    for (int Y = 0; Y < Picture.height(); ++Y) {
        auto* Line = reinterpret_cast<QRgb*>(Picture.scanLine(Y));
        for (int X = 0; X < Picture.width(); ++X) {
            const auto* Ink = reinterpret_cast<const uchar*>(Line + X);
            const int Paper = 255 - Ink[3];
            const auto Mix = [Paper](int C) { return ((255 - C) * Paper + 127) / 255; };
            Line[X] = qRgb(Mix(Ink[0]), Mix(Ink[1]), Mix(Ink[2]));
        }
    }
}

bool IsAllClear(const QImage& Picture) {
    for (int Y = 0; Y < Picture.height(); ++Y) {
        const auto* Line = reinterpret_cast<const QRgb*>(Picture.constScanLine(Y));
        if (std::any_of(Line, Line + Picture.width(), [](QRgb P) { return qAlpha(P) != 0; }))
            return false;
    }
    return true;
}

}  // namespace

QImage ToScreenColours(QImage Picture, const QByteArray& Profile) {
    const ProfileHandle From = OpenProfile(Profile);
    const auto Space = From ? cmsGetColorSpace(From.get()) : cmsSigRgbData;
    const bool Alpha = Picture.hasAlphaChannel();
    if (Space == cmsSigGrayData && !Alpha && Picture.allGray())
        return GreyToScreen(std::move(Picture).convertToFormat(QImage::Format_Grayscale8), From);
    Picture.convertTo(Alpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    Picture.setColorSpace(QColorSpace());
    if (From && Space == cmsSigRgbData) {
        const auto Transform = MakeTransform(From, PixelType);
        if (Transform && !ChangesNothing(Transform)) ApplyInPlace(Transform, Picture);
    }
    if (Alpha) LayOnWhite(Picture);
    return Picture;
}

void InksToScreenColours(QImage& Picture, const QByteArray& Profile) {
    const ProfileHandle From = OpenProfile(Profile);
    const bool Usable = From && cmsGetColorSpace(From.get()) == cmsSigCmykData;
    // The fourth ink stands where alpha would, so it is not copied but every pixel made opaque.
    const auto Transform = Usable ? MakeTransform(From, TYPE_CMYK_8) : nullptr;
    if (!Transform) return PlainInksToColours(Picture);
    ApplyInPlace(Transform, Picture);
    MakeOpaque(Picture);
}

void MakeOpaque(QImage& Picture) {
    for (int Y = 0; Y < Picture.height(); ++Y) {
        auto* Line = reinterpret_cast<QRgb*>(Picture.scanLine(Y));
        std::for_each(Line, Line + Picture.width(), [](QRgb& Pixel) { Pixel |= 0xFF000000; });
    }
}

void MakeOpaqueIfAllClear(QImage& Picture) {
    if (!Picture.hasAlphaChannel() || !IsAllClear(Picture)) return;
    Picture.reinterpretAsFormat(QImage::Format_RGB32);
    MakeOpaque(Picture);
}

QByteArray AdobeRgbProfile() {
    static const QByteArray Profile = QColorSpace(QColorSpace::AdobeRgb).iccProfile();
    return Profile;
}

}  // namespace neb
