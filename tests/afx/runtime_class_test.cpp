// Run-time classes: inheritance, and creation of objects by class.

#include <afx.h>

#include <gtest/gtest.h>

#include <memory>

namespace {

class CAnimal : public CObject {
    DECLARE_DYNAMIC(CAnimal)
};
class CDog : public CAnimal {
    DECLARE_DYNCREATE(CDog)
};
class CPlain : public CDog {}; // without its own run-time class
IMPLEMENT_DYNAMIC(CAnimal, CObject)
IMPLEMENT_DYNCREATE(CDog, CAnimal)

TEST(RuntimeClass, KnowsItsBases) {
    CDog dog;
    CAnimal animal;
    EXPECT_TRUE(dog.IsKindOf(RUNTIME_CLASS(CDog)));
    EXPECT_TRUE(dog.IsKindOf(RUNTIME_CLASS(CAnimal)));
    EXPECT_TRUE(dog.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(animal.IsKindOf(RUNTIME_CLASS(CDog)));
    EXPECT_FALSE(dog.IsKindOf(RUNTIME_CLASS(CException)));
    EXPECT_STREQ(CPlain().GetRuntimeClass()->m_lpszClassName, "CDog");
    EXPECT_EQ(RUNTIME_CLASS(CDog)->m_wSchema, 0xFFFFu);
}

TEST(RuntimeClass, CreatesObjects) {
    const std::unique_ptr<CObject> dog(RUNTIME_CLASS(CDog)->CreateObject());
    ASSERT_NE(dog, nullptr);
    EXPECT_EQ(RUNTIME_CLASS(CDog), dog->GetRuntimeClass());
    EXPECT_EQ(RUNTIME_CLASS(CAnimal)->CreateObject(), nullptr);
}

} // namespace
