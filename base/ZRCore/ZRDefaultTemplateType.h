#ifndef ZRDEFAULTTEMPLATETYPE_H
#define ZRDEFAULTTEMPLATETYPE_H

/** Kind of a default template of a page. */
enum ZRDefaultTemplateType
{
    ZRDefaultTemplateLayout = 0,
    ZRDefaultTemplateBackground = 1,
    ZRDefaultTemplateDesign = 2,
};

#endif
