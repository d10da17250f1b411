// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/QnBaseApi.h"

/// A node of a chain that is nothing but its nodes: derived from, linked by hand, open or closed to a ring.
///
/// Ownership  A node owns the chain that follows it, up to the end or, in a ring, up to itself: deleting one node of a
///            ring deletes the ring. SetNext never deletes what it replaces. A copy has the data and no links.
/// Cost       Deleting goes along the chain without recursion, whatever its length.
template <class T>
class QUARN_TEMPLATE_API QnFreeList {
public:
    T data{};
    QnFreeList* next = nullptr;

    QnFreeList() = default;
    explicit QnFreeList(const T& value) : data(value) {}
    QnFreeList(const QnFreeList& other) : data(other.data) {}
    QnFreeList& operator=(const QnFreeList& other);
    virtual ~QnFreeList() { KillChain(); }

    virtual void SetNext(QnFreeList* node) { next = node; }
    /// Cuts the chain behind this node and answers the node that followed.
    ///
    /// Ownership  The caller owns that node and what follows it.
    virtual QnFreeList* ClearNext();
    QnFreeList* Detach() { return ClearNext(); }

protected:
    /// Deletes the chain that follows. Each node is unhooked before it goes, so that its own destructor finds nothing.
    void KillChain();
};

/// The kind with a link back. A previous link is set by Link only, and never followed into a node that may be gone.
template <class T>
class QUARN_TEMPLATE_API QnFreeDList : public QnFreeList<T> {
public:
    QnFreeDList* previous = nullptr;

    QnFreeDList() = default;
    explicit QnFreeDList(const T& value) : QnFreeList<T>(value) {}
    QnFreeDList(const QnFreeDList& other) : QnFreeList<T>(other) {}
    QnFreeDList& operator=(const QnFreeDList& other);
    /// Unhooks the node from its predecessor, then deletes the chain that follows.
    ~QnFreeDList() override;

    /// Sets the next link alone; the old following node loses its link back.
    void SetNext(QnFreeList<T>* node) override;
    QnFreeDList* ClearNext() override;
    /// Links `node` behind this one, both ways, after cutting this node's old link and unhooking `node` from its former
    /// predecessor. Null only cuts.
    virtual void Link(QnFreeDList* node);

private:
    void DropLinkBack();
};

// ---- bodies ----------------------------------------------------------------------------------------

template <class T>
QnFreeList<T>& QnFreeList<T>::operator=(const QnFreeList& other) {
    data = other.data;
    return *this;
}

template <class T>
QnFreeList<T>* QnFreeList<T>::ClearNext() {
    QnFreeList* following = next;
    next = nullptr;
    return following;
}

template <class T>
void QnFreeList<T>::KillChain() {
    QnFreeList* node = ClearNext();
    while (node != nullptr && node != this) {
        QnFreeList* following = node->ClearNext();
        delete node;
        node = following;
    }
}

template <class T>
QnFreeDList<T>& QnFreeDList<T>::operator=(const QnFreeDList& other) {
    this->data = other.data;
    return *this;
}

template <class T>
QnFreeDList<T>::~QnFreeDList() {
    if (previous != nullptr && previous->next == this) {
        previous->next = nullptr;
    }
    previous = nullptr;
    this->KillChain();
}

template <class T>
void QnFreeDList<T>::SetNext(QnFreeList<T>* node) {
    DropLinkBack();
    this->next = node;
}

template <class T>
QnFreeDList<T>* QnFreeDList<T>::ClearNext() {
    auto* following = static_cast<QnFreeDList*>(this->next);
    DropLinkBack();
    this->next = nullptr;
    return following;
}

template <class T>
void QnFreeDList<T>::Link(QnFreeDList* node) {
    ClearNext();
    if (node == nullptr) {
        return;
    }
    if (node->previous != nullptr) {
        node->previous->ClearNext();
    }
    node->previous = this;
    this->next = node;
}

template <class T>
void QnFreeDList<T>::DropLinkBack() {
    auto* following = static_cast<QnFreeDList*>(this->next);
    if (following != nullptr && following->previous == this) {
        following->previous = nullptr;
    }
}
