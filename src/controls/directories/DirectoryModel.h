// The tree of the host's directories, for a tree view: each directory is read when it is first
// opened, on a helper thread, so that no directory however full holds up the window. Used by
// DirectoryTree.
#pragma once

#include <QAbstractItemModel>
#include <QIcon>
#include <QStringList>
#include <QTimer>
#include <memory>
#include <vector>

#include "support/work/AheadQueue.h"

namespace neb {

class DirectoryModel : public QAbstractItemModel {
    Q_OBJECT

  public:
    explicit DirectoryModel(QObject* Parent = nullptr);
    ~DirectoryModel() override;

    // The full path of a directory in the tree.
    QString Path(const QModelIndex& Index) const;
    // The place of a directory that exists, hidden ones too; it is there at once, the others
    // beside it and those below it follow.
    QModelIndex Reveal(const QString& Path);
    // Drops what is known of a directory's inside; it is read anew when it is next opened.
    void Forget(const QModelIndex& Index);

    QModelIndex index(int Row, int Column, const QModelIndex& Parent = {}) const override;
    QModelIndex parent(const QModelIndex& Index) const override;
    int rowCount(const QModelIndex& Parent = {}) const override;
    int columnCount(const QModelIndex& Parent = {}) const override;
    QVariant data(const QModelIndex& Index, int Role) const override;
    bool hasChildren(const QModelIndex& Parent = {}) const override;
    bool canFetchMore(const QModelIndex& Parent) const override;
    void fetchMore(const QModelIndex& Parent) override;

  private:
    struct Node;
    struct Reading {
        Node* Where;
        std::unique_ptr<AheadQueue<QString, QStringList>> Names;
    };

    Node* NodeOf(const QModelIndex& Index) const;
    QModelIndex IndexOf(const Node& Where) const;
    Node* Child(Node& Where, const QString& Name);
    void StartReading(Node& Where);
    void LookAtReadings();
    void Merge(Node& Where, const QStringList& Names);
    void Insert(Node& Where, size_t At, const QStringList& Names);

    std::unique_ptr<Node> mTop;  // holds the root directory alone and is not shown
    std::vector<Reading> mReadings;
    QTimer mLook;  // runs while directories are read
    QIcon mIcon;
};

}  // namespace neb
