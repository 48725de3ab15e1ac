#pragma once

/// Reaches a private data member, for tests of what other code relies on in an object's layout and
/// nothing public tells. An explicit instantiation may name private members:
///
///     struct Count { using Type = int Thing::*; friend Type revealed(Count); };
///     template struct RevealedMember<Count, &Thing::m_count>;
///     ... thing.*revealed(Count()) ...
///
/// Tags stand in no namespace.
template <typename Tag, typename Tag::Type Member>
struct RevealedMember
{
    friend typename Tag::Type revealed(Tag) { return Member; }
};
