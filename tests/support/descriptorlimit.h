// SPDX-License-Identifier: MIT
#pragma once

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

/// Lets this process open nothing more: it has used up its file descriptors.
class DescriptorLimit
{
public:
    DescriptorLimit()
    {
        getrlimit(RLIMIT_NOFILE, &m_former);
        const int firstFree = open("/dev/null", O_RDONLY);
        close(firstFree);
        const rlimit limit{static_cast<rlim_t>(firstFree), m_former.rlim_max};
        setrlimit(RLIMIT_NOFILE, &limit);
    }
    ~DescriptorLimit() { setrlimit(RLIMIT_NOFILE, &m_former); }
    DescriptorLimit(const DescriptorLimit&) = delete;
    DescriptorLimit& operator=(const DescriptorLimit&) = delete;

private:
    rlimit m_former{};
};
