// SPDX-License-Identifier: Apache-2.0
// Class records by themselves, on a small tree made here. The records of the library's classes are tested with the
// promises that all classes keep.
#include <gtest/gtest.h>

#include <type_traits>

#include "base/QnRxClassInfo.h"
#include "base/QnRxRunTimeClass.h"

static_assert(!std::is_copy_constructible_v<QnRxClassInfo>, "a record is known by its address");
static_assert(!std::is_copy_assignable_v<QnRxClassInfo>, "a record is known by its address");
static_assert(std::has_virtual_destructor_v<QnRxClassInfo>, "the destructor is virtual");
static_assert(std::is_copy_constructible_v<QnRxRunTimeClass>, "objects copy through it");
static_assert(std::has_virtual_destructor_v<QnRxRunTimeClass>, "the destructor is virtual");

namespace {

/// A record whose parent is the root of all.
class Animal : public QnRxRunTimeClass {
public:
    static QnRxClassInfo s_classInfo;
    const QnRxClassInfo* GetCI() const override { return &s_classInfo; }
};

class Dog : public Animal {
public:
    static QnRxClassInfo s_classInfo;
    const QnRxClassInfo* GetCI() const override { return &s_classInfo; }
};

class Cat : public Animal {
public:
    static QnRxClassInfo s_classInfo;
    const QnRxClassInfo* GetCI() const override { return &s_classInfo; }
};

/// Without a record of its own it answers as its base.
class Puppy : public Dog {};

// Children before parents: a record may be built before the one it points to.
QnRxClassInfo Dog::s_classInfo("Dog", 12, nullptr, &Animal::s_classInfo, nullptr, nullptr, nullptr, nullptr);
QnRxClassInfo Cat::s_classInfo("Cat", 13, nullptr, &Animal::s_classInfo, nullptr, nullptr, nullptr, nullptr);
QnRxClassInfo Animal::s_classInfo("Animal", 11, nullptr, &QnRxRunTimeClass::GetStaticCI(), nullptr, nullptr, nullptr,
                                  nullptr);

}  // namespace

TEST(ClassRecord, KeepsNameIdAndParent) {
    EXPECT_STREQ(Dog::s_classInfo.GetName(), "Dog");
    EXPECT_EQ(Dog::s_classInfo.GetClassID(), 12);
    EXPECT_EQ(Dog::s_classInfo.GetParent(), &Animal::s_classInfo);
    EXPECT_EQ(Dog::s_classInfo.GetParent(0), &Animal::s_classInfo);
}

TEST(ClassRecord, KeepsAllFiveParents) {
    const QnRxClassInfo many("Many", 1, nullptr, &Dog::s_classInfo, &Cat::s_classInfo, nullptr, &Animal::s_classInfo,
                             &QnRxRunTimeClass::s_classInfo);
    EXPECT_EQ(many.GetParent(0), &Dog::s_classInfo);
    EXPECT_EQ(many.GetParent(1), &Cat::s_classInfo);
    EXPECT_EQ(many.GetParent(2), nullptr);
    EXPECT_EQ(many.GetParent(3), &Animal::s_classInfo);
    EXPECT_EQ(many.GetParent(4), &QnRxRunTimeClass::s_classInfo);
}

TEST(ClassRecord, ParentOutOfRangeIsNull) {
    EXPECT_EQ(Dog::s_classInfo.GetParent(1), nullptr);
    EXPECT_EQ(Dog::s_classInfo.GetParent(5), nullptr);
    EXPECT_EQ(Dog::s_classInfo.GetParent(-1), nullptr);
}

TEST(ClassRecord, RootAnswersWithItsOwnRecordAndHasNoParent) {
    const QnRxRunTimeClass root;
    EXPECT_EQ(root.GetCI(), &QnRxRunTimeClass::s_classInfo);
    EXPECT_EQ(&QnRxRunTimeClass::GetStaticCI(), &QnRxRunTimeClass::s_classInfo);
    EXPECT_EQ(QnRxRunTimeClass::s_classInfo.GetParent(), nullptr);
    EXPECT_STREQ(QnRxRunTimeClass::s_classInfo.GetName(), "QnRxRunTimeClass");
}

TEST(ClassRecord, ClassIdIsThatOfTheRecordOfTheObject) {
    const Dog dog;
    const Animal& animal = dog;
    EXPECT_EQ(animal.GetClassID(), 12);
}

TEST(ClassRecord, IsClassOfFollowsTheParents) {
    const Dog dog;
    EXPECT_TRUE(dog.IsClassOf(&Dog::s_classInfo));
    EXPECT_TRUE(dog.IsClassOf(&Animal::s_classInfo));
    EXPECT_TRUE(dog.IsClassOf(&QnRxRunTimeClass::s_classInfo));
}

TEST(ClassRecord, IsClassOfIsFalseForSiblingsAndForTheLessDerived) {
    const Dog dog;
    const Animal animal;
    EXPECT_FALSE(dog.IsClassOf(&Cat::s_classInfo));
    EXPECT_FALSE(animal.IsClassOf(&Dog::s_classInfo));
}

TEST(ClassRecord, IsClassOfNullIsFalse) {
    EXPECT_FALSE(Dog().IsClassOf(nullptr));
    EXPECT_FALSE(QnRxRunTimeClass().IsClassOf(nullptr));
}

TEST(ClassRecord, ExactTestsCompareTheAddressOfTheRecord) {
    const Dog dog;
    const Puppy puppy;
    EXPECT_TRUE(dog.GetCI() == &Dog::s_classInfo);
    EXPECT_FALSE(dog.GetCI() == &Animal::s_classInfo);
    EXPECT_TRUE(puppy.GetCI() == &Dog::s_classInfo);
    EXPECT_EQ(puppy.GetClassID(), 12);
}

namespace {

/// Both a cat and a dog, as far as the record says; the first place is empty.
class Chimera : public QnRxRunTimeClass {
public:
    static QnRxClassInfo s_classInfo;
    const QnRxClassInfo* GetCI() const override { return &s_classInfo; }
};

QnRxClassInfo Chimera::s_classInfo("Chimera", 14, nullptr, nullptr, &Dog::s_classInfo, nullptr, nullptr,
                                   &Cat::s_classInfo);

}  // namespace

TEST(ClassRecord, IsClassOfFollowsAllParentsOfARecord) {
    const Chimera chimera;
    EXPECT_TRUE(chimera.IsClassOf(&Dog::s_classInfo));
    EXPECT_TRUE(chimera.IsClassOf(&Cat::s_classInfo));
    EXPECT_TRUE(chimera.IsClassOf(&Animal::s_classInfo));
    EXPECT_FALSE(Dog().IsClassOf(&Chimera::s_classInfo));
}
