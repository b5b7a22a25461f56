// SPDX-License-Identifier: MIT
#include "ifileopener.h"

IFileOpener::IFileOpener()
    : m_lifetime(std::make_shared<char>())
{}

IFileOpener::~IFileOpener() = default;
