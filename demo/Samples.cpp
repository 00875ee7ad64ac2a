#include "Samples.h"

#include <atomic>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

#include "Encode.h"
#include "support/files/modHostFiles.h"

namespace neb::demo {
namespace {

void WriteOne(const Scene& Picture, const QString& Folder, int Percent) {
    const QString Name = QString::fromUtf8(Picture.FileName);
    const QString Format = Name.section(u'.', -1);
    const QImage Image = Picture.Paint(SizeAt(Picture, Percent));
    WriteFile(Folder + u'/' + Name, Encode(Image, Format, Picture.Stored));
}

// Takes the pictures off the table one by one; the first failure ends all.
class Painters {
  public:
    Painters(const QString& Folder, int Percent) : mFolder(Folder), mPercent(Percent) {}

    void Run() {
        std::vector<std::thread> Threads;
        for (unsigned I = 1; I < std::thread::hardware_concurrency(); ++I)
            Threads.emplace_back([this] { Work(); });
        Work();
        for (std::thread& Thread : Threads) Thread.join();
        if (mFailure) std::rethrow_exception(mFailure);
    }

  private:
    void Work() {
        const std::span<const Scene> Scenes = AllScenes();
        for (size_t I = mNext++; I < Scenes.size(); I = mNext++) {
            try {
                WriteOne(Scenes[I], mFolder, mPercent);
            } catch (...) {
                const std::lock_guard Lock(mMutex);
                if (!mFailure) mFailure = std::current_exception();
                mNext = Scenes.size();
            }
        }
    }

    QString mFolder;
    int mPercent;
    std::atomic<size_t> mNext = 0;
    std::mutex mMutex;
    std::exception_ptr mFailure;
};

}  // namespace

QSize SizeAt(const Scene& Picture, int Percent) {
    return (Picture.Size * Percent / 100).expandedTo(QSize(8, 8));
}

void WriteSamples(const QString& Folder, int Percent) {
    InitEncoders();
    MakeDirs(Folder);
    Painters(Folder, Percent).Run();
}

}  // namespace neb::demo
