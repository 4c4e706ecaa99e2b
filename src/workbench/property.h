// Members of controls that are read and written like variables.
#pragma once

#include <concepts>
#include <string>
#include <utility>

#include "workbench/watcher.h"

namespace quill {

// A stored property. Writing a new value notifies the control, which raises the resulting events
// before the write returns.
template <class T>
class Property {
 public:
  Property(Control& owner, PropertyId id, T value)
      : owner_(owner), id_(id), value_(std::move(value)) {}
  Property(const Property&) = delete;
  ~Property() = default;

  Property& operator=(T value);
  Property& operator=(const Property& other) { return *this = other.value_; }
  // Like writing the longer text, at the cost of one character.
  Property& operator+=(char32_t character) requires std::same_as<T, std::u32string> {
    value_ += character;
    Tell();
    return *this;
  }

  const T& Get() const { return value_; }
  operator const T&() const { return value_; }

 private:
  void Tell();

  Control& owner_;
  PropertyId id_;
  T value_;
};

template <class T, class U>
bool operator==(const Property<T>& property, const U& value) {
  return property.Get() == value;
}
template <class T>
bool operator==(const Property<T>& left, const Property<T>& right) {
  return left.Get() == right.Get();
}

template <class Owner, class T>
T ResultOf(T (Owner::*)() const);

// A computed property: reading and writing call members of the owner.
template <class Owner, auto Read, auto Write>
class Accessor {
 public:
  using Value = decltype(ResultOf(Read));

  explicit Accessor(Owner& owner) : owner_(owner) {}
  Accessor(const Accessor&) = delete;
  ~Accessor() = default;

  template <class V>
  Accessor& operator=(const V& value) {
    (owner_.*Write)(value);
    return *this;
  }
  Value Get() const { return (owner_.*Read)(); }
  operator Value() const { return Get(); }

 private:
  Owner& owner_;
};

}  // namespace quill
