#include "controls/directories/DirectoryModel.h"

#include <QApplication>
#include <QStyle>
#include <algorithm>

#include "support/files/modHostFilesWalk.h"
#include "support/modFUFL.h"
#include "support/modText.h"

namespace neb {
namespace {

constexpr int LookMs = 10;

}  // namespace

struct DirectoryModel::Node {
    enum class State { Unread, Reading, Read };

    QString Name;
    Node* Above = nullptr;
    State Is = State::Unread;
    std::vector<std::unique_ptr<Node>> Below;  // in the order of FolderNameLess

    QString Path() const {
        return Above && Above->Above ? WithSeparator(Above->Path()) + Name : Name;
    }
    // Where a directory of the name stands or would stand.
    size_t Place(const QString& Wanted) const {
        const auto Less = [](const auto& A, const QString& B) {
            return FolderNameLess(A->Name, B);
        };
        return size_t(std::lower_bound(Below.begin(), Below.end(), Wanted, Less) - Below.begin());
    }
    bool IsWithin(const Node& Other) const {
        return this == &Other || (Above && Above->IsWithin(Other));
    }
};

DirectoryModel::DirectoryModel(QObject* Parent)
    : QAbstractItemModel(Parent),
      mTop(std::make_unique<Node>()),
      mIcon(QApplication::style()->standardIcon(QStyle::SP_DirIcon)) {
    mTop->Is = Node::State::Read;
    Insert(*mTop, 0, {QStringLiteral("/")});
    connect(&mLook, &QTimer::timeout, this, &DirectoryModel::LookAtReadings);
}

DirectoryModel::~DirectoryModel() = default;

DirectoryModel::Node* DirectoryModel::NodeOf(const QModelIndex& Index) const {
    return Index.isValid() ? static_cast<Node*>(Index.internalPointer()) : mTop.get();
}

QModelIndex DirectoryModel::IndexOf(const Node& Where) const {
    if (!Where.Above) return {};
    return createIndex(static_cast<int>(Where.Above->Place(Where.Name)), 0, &Where);
}

QString DirectoryModel::Path(const QModelIndex& Index) const {
    return NodeOf(Index)->Path();
}

QModelIndex DirectoryModel::Reveal(const QString& Path) {
    Node* Where = mTop->Below.front().get();
    for (const QString& Name : Path.split(u'/', Qt::SkipEmptyParts)) {
        if (Name == u".") continue;
        if (Name == u"..") {
            Where = Where->Above->Above ? Where->Above : Where;
            continue;
        }
        StartReading(*Where);
        Where = Child(*Where, Name);
    }
    StartReading(*Where);
    return IndexOf(*Where);
}

DirectoryModel::Node* DirectoryModel::Child(Node& Where, const QString& Name) {
    const size_t At = Where.Place(Name);
    if (At == Where.Below.size() || Where.Below[At]->Name != Name) Insert(Where, At, {Name});
    return Where.Below[At].get();
}

void DirectoryModel::Forget(const QModelIndex& Index) {
    Node& Where = *NodeOf(Index);
    std::erase_if(mReadings, [&](const Reading& Each) { return Each.Where->IsWithin(Where); });
    if (!Where.Below.empty()) {
        beginRemoveRows(Index, 0, static_cast<int>(Where.Below.size()) - 1);
        Where.Below.clear();
        endRemoveRows();
    }
    Where.Is = Node::State::Unread;
}

void DirectoryModel::StartReading(Node& Where) {
    if (Where.Is != Node::State::Unread) return;
    Where.Is = Node::State::Reading;
    mReadings.push_back({&Where, std::make_unique<AheadQueue<QString, QStringList>>(
                                     std::vector{Where.Path()}, &ListFolders)});
    mLook.start(LookMs);
}

// What has come in is taken out before the tree changes: who hears of that may ask for more.
void DirectoryModel::LookAtReadings() {
    for (size_t I = 0; I < mReadings.size();) {
        if (!mReadings[I].Names->Ready()) {
            ++I;
            continue;
        }
        Node& Where = *mReadings[I].Where;
        const QStringList Names = mReadings[I].Names->Take();
        mReadings.erase(mReadings.begin() + static_cast<std::ptrdiff_t>(I));
        Merge(Where, Names);
    }
    if (mReadings.empty()) mLook.stop();
}

// Puts those that are not in the tree yet between those that are.
void DirectoryModel::Merge(Node& Where, const QStringList& Names) {
    Where.Is = Node::State::Read;
    size_t At = 0;
    for (qsizetype I = 0; I < Names.size();) {
        const Node* Next = At < Where.Below.size() ? Where.Below[At].get() : nullptr;
        qsizetype End = I;
        while (End < Names.size() && (!Next || FolderNameLess(Names[End], Next->Name))) ++End;
        Insert(Where, At, Names.mid(I, End - I));
        At += static_cast<size_t>(End - I) + 1;
        I = End + (Next && End < Names.size() && Names[End] == Next->Name);
    }
    if (!Where.Below.empty()) return;
    Q_EMIT layoutAboutToBeChanged();  // it can be opened no more
    Q_EMIT layoutChanged();
}

void DirectoryModel::Insert(Node& Where, size_t At, const QStringList& Names) {
    if (Names.isEmpty()) return;
    std::vector<std::unique_ptr<Node>> Made;
    for (const QString& Name : Names)
        Made.push_back(std::make_unique<Node>(Node{.Name = Name, .Above = &Where}));
    const int First = static_cast<int>(At);
    beginInsertRows(IndexOf(Where), First, First + static_cast<int>(Names.size()) - 1);
    Where.Below.insert(Where.Below.begin() + First, std::make_move_iterator(Made.begin()),
                       std::make_move_iterator(Made.end()));
    endInsertRows();
}

QModelIndex DirectoryModel::index(int Row, int Column, const QModelIndex& Parent) const {
    if (!hasIndex(Row, Column, Parent)) return {};
    return createIndex(Row, Column, NodeOf(Parent)->Below[static_cast<size_t>(Row)].get());
}

QModelIndex DirectoryModel::parent(const QModelIndex& Index) const {
    return Index.isValid() ? IndexOf(*NodeOf(Index)->Above) : QModelIndex();
}

int DirectoryModel::rowCount(const QModelIndex& Parent) const {
    return static_cast<int>(NodeOf(Parent)->Below.size());
}

int DirectoryModel::columnCount(const QModelIndex&) const {
    return 1;
}

QVariant DirectoryModel::data(const QModelIndex& Index, int Role) const {
    if (Role == Qt::DecorationRole) return mIcon;
    return Role == Qt::DisplayRole ? QVariant(ReadableText(NodeOf(Index)->Name)) : QVariant();
}

// One that is not read yet may be opened, and shows then whether it holds any.
bool DirectoryModel::hasChildren(const QModelIndex& Parent) const {
    const Node& Where = *NodeOf(Parent);
    return !Where.Below.empty() || Where.Is != Node::State::Read;
}

bool DirectoryModel::canFetchMore(const QModelIndex& Parent) const {
    return NodeOf(Parent)->Is == Node::State::Unread;
}

void DirectoryModel::fetchMore(const QModelIndex& Parent) {
    StartReading(*NodeOf(Parent));
}

}  // namespace neb
