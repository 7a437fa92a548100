#pragma once
// A property of a control: reading gives the value, writing stores it and
// tells the owner, which runs the control's event inside the write where the
// toolkit says so, and tells the screen to follow.
#include <string>
#include <string_view>

namespace ostraline {

class PropertyOwner {
 public:
  virtual ~PropertyOwner() = default;
  // Called after every write; changed tells whether the value differs.
  virtual void PropertyWritten(std::string_view name, bool changed) = 0;
};

template <class T>
class Property {
 public:
  Property(PropertyOwner* owner, const char* name, T initial = T{})
      : owner_(owner), name_(name), value_(std::move(initial)) {}
  Property(const Property&) = delete;
  Property& operator=(const Property& other) { return *this = other.value_; }

  operator const T&() const { return value_; }
  const T& Get() const { return value_; }
  const char* Name() const { return name_; }

  Property& operator=(const T& value) {
    const bool changed = !(value_ == value);
    value_ = value;
    owner_->PropertyWritten(name_, changed);
    return *this;
  }
  // Sets without telling the owner: for the screen's own edits that were
  // already forwarded, and for design-time set-up.
  void SetQuietly(const T& value) { value_ = value; }

 private:
  PropertyOwner* owner_;
  const char* name_;
  T value_;
};

// Text properties read as text anywhere a text is expected.
template <>
class Property<std::string> {
 public:
  Property(PropertyOwner* owner, const char* name, std::string initial = {})
      : owner_(owner), name_(name), value_(std::move(initial)) {}
  Property(const Property&) = delete;
  Property& operator=(const Property& other) { return *this = other.value_; }

  operator const std::string&() const { return value_; }
  operator std::string_view() const { return value_; }
  const std::string& Get() const { return value_; }
  const char* Name() const { return name_; }

  Property& operator=(const std::string& value) {
    const bool changed = value_ != value;
    value_ = value;
    owner_->PropertyWritten(name_, changed);
    return *this;
  }
  Property& operator=(const char* value) { return *this = std::string(value); }
  void SetQuietly(const std::string& value) { value_ = value; }

  friend bool operator==(const Property& p, std::string_view s) { return p.value_ == s; }
  friend std::string operator+(const Property& p, std::string_view s) {
    return p.value_ + std::string(s);
  }
  friend std::string operator+(std::string_view s, const Property& p) {
    return std::string(s) + p.value_;
  }

 private:
  PropertyOwner* owner_;
  const char* name_;
  std::string value_;
};

}  // namespace ostraline
