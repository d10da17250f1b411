// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <new>

#include "containers/QnArray.h"
#include "containers/QnDynArrayBase.h"
#include "containers/impl/Ordering.h"
#include "containers/impl/Pieces.h"

/// A list node. The element comes first: its address, which GetFirst and its like hand out, is that of the node.
template <class T>
struct QnListNode {
    T data{};
    QnListNode* next = nullptr;

    QnListNode() = default;
    explicit QnListNode(const T& value) : data(value) {}
};

/// The node that all lists are made of, so that nodes can pass from any list to any other.
template <class T>
struct QnDListNode : QnListNode<T> {
    QnDListNode* previous = nullptr;

    QnDListNode() = default;
    explicit QnDListNode(const T& value) : QnListNode<T>(value) {}

    // Nodes come and go singly and often: they have free lists of their own.
    static void* operator new(std::size_t bytes) { return qn_detail::TakePiece(bytes); }
    static void operator delete(void* node, std::size_t bytes) { qn_detail::GivePiece(node, bytes); }
    static void* operator new(std::size_t bytes, std::align_val_t alignment) {
        return ::operator new(bytes, alignment);
    }
    static void operator delete(void* node, std::size_t /*bytes*/, std::align_val_t alignment) {
        ::operator delete(node, alignment);  // the sized form is not everywhere
    }
};

/// A linked list with the cursor and the index operations of all sequences.
///
///      +-> sentinel <-> element 0 <-> element 1 <-> ... <-> tail <-+      The chain is a ring through the
///      |      ^ current node when the cursor is out                |      sentinel, which is no element.
///      +-----------------------------------------------------------+
///
/// The cursor goes round: MoveToNext on the last element leaves it out, and from out it reaches the first; MoveToPre
/// the other way about. A loop tests IsOut after each step. An index that is not valid puts the cursor out.
///
/// Inserting goes before the current element (InsertCur) or behind it (InsertAfterCur). With the cursor out the former
/// appends and the latter inserts at the head.
///
/// Invariant  The cursor index and the current node agree: index -1 is the sentinel.
/// Ownership  Owns its nodes. Copy and assignment copy the elements; the cursor of the copy is out.
/// Fails      GetAt on a bad index and GetCurData with the cursor out answer the sentinel's spare element, which may be
///            written and means nothing. Only what an operation says it answers tells of a failure.
/// Cost       Index operations walk from the nearest of both ends, the cursor and the last index asked for, so loops by
///            ascending or descending index are linear.
/// Kept odd   ReAllocate and DecreaseSize never shorten a list.
template <class T>
class QUARN_TEMPLATE_API QnList : public QnDynArrayBase<T> {
    using Base = QnDynArrayBase<T>;

public:
    explicit QnList(long length = 0);
    QnList(const QnList& other);
    ~QnList() override;

    QnList& operator=(const QnList& other);
    QnList& operator=(const QnDynArrayBase<T>& other);

    // ---- operations of the family, in slot order -------------------------------------------------
protected:
    /// Appends default elements up to `length`; the cursor stays.
    void ReAllocate(long length) override;

public:
    void SetLength(long length, bool keep) override;
    void Reset() override;
    T& GetCurData() override { return m_pCurrent->data; }
    void SetCurData(const T& value) override { m_pCurrent->data = value; }
    void MoveToFirst() override;
    void MoveToNext() override;
    void MoveToPre() override;
    void MoveToLast() override;
    void MoveTo(long index) override;
    const T* GetFirst() const override { return Element(Next(m_pHead)); }
    const T* GetNext(const T* element) const override;
    const T* GetPre(const T* element) const override;
    const T* GetLast() const override { return Element(m_pTail); }
    const T& GetAt(long index) const override;
    void InsertCur(const T& value) override;
    /// Inserts before element `index`, and at the head when there is no element `index` - 1.
    void Insert(long index, const T& value) override;
    void InsertHead(const T& value) override;
    long Append(const T& value) override;
    void DelCur() override;
    /// Stable insertion sort; the cursor is out afterwards. Elements below a tolerance apart need not be in a
    /// transitive order: each is put before the first element in front of it that must come after it.
    void Sort(int (*compare)(const T&, const T&)) override;
    /// Cost  n log n for numbers and pointers, quadratic for all others.
    void Sort(bool ascending) override;

    // ---- operations of lists, in slot order ------------------------------------------------------

    /// Inserts behind the current element, at the head if the cursor is out; the cursor is on the new element.
    virtual void InsertAfterCur(const T& value);
    /// Cuts the chain behind the current element, which becomes the last; with the cursor out the list becomes empty.
    ///
    /// Ownership  The nodes cut off are freed by nobody. Half of a transfer: Conbine is the whole one.
    virtual void DetachAfterCur();
    /// Moves the elements of `other` from index `first` on to the end of this list, by relinking the nodes, and answers
    /// the new length. The cursor stays; that of `other` is on its last remaining element.
    ///
    /// Ownership  What the elements point to passes with them.
    /// Fails      Nothing moves if `first` is no index of `other` or `other` is this list.
    /// Cost       Finding `first`; constant otherwise.
    virtual long Conbine(QnList<T>& other, long first);
    /// Turns the order of the nodes round. The cursor keeps its index.
    virtual void ReverseList();
    /// Shifts round such that the element at index `from` gets index `to`. The cursor is on the first element.
    virtual void Rotate(long from, long to);

    // ---- cutting up ------------------------------------------------------------------------------

    /// Forgets all nodes, as DetachAfterCur does.
    void Detach();
    void DetachAfter(long index);
    /// Moves the elements from `index` on to the end of `rest`; none if there is no such index.
    void SplitAt(long index, QnList<T>& rest);
    void SplitAtCur(QnList<T>& rest);

protected:
    using Base::m_nCur;
    using Base::m_nLength;
    using Node = QnDListNode<T>;

    Node* m_pCurrent;
    Node* m_pHead;  ///< the sentinel
    Node* m_pTail;  ///< the last node, or the sentinel

    mutable Node* m_pHint = nullptr;  ///< the node last found by index
    mutable long m_nHint = -1;        ///< its index, -1 for none. Whatever moves nodes drops it.

    static Node* Next(const Node* node) { return static_cast<Node*>(node->next); }
    static Node* NodeOf(const T* element);
    const T* Element(const Node* node) const { return node == m_pHead ? nullptr : std::addressof(node->data); }
    Node* NodeAt(long index) const;
    void DropHint() const { m_nHint = -1; }
    void GoOut();
    void AppendNodes(long count, const T* first, const Base* source);
    void FreeNodes();
    static void LinkBefore(Node* node, Node* place);
    static void Unlink(Node* node);

    template <class After>
    void SortForward(After after);
    template <class After>
    void SortBackward(After after);
    bool SortExactly(bool ascending);
    void EndOfSort();
};

#include "containers/impl/QnList_impl.h"  // the bodies
